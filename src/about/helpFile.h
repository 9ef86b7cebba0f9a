#pragma once

namespace about {

/// Opens the program folder's help file in a viewer, as a separate process that nobody waits for. Says so when there is
/// no viewer; a missing file is the viewer's to complain about.
void openHelpFile();

} // namespace about
