#pragma once

namespace about {

/// Opens the program folder's help file in a viewer, a separate process, and does not wait for it. Shows a message when
/// there is no viewer; a missing file is reported by the viewer.
void openHelpFile();

} // namespace about
