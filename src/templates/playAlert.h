// Of the shared routines (modMain), the sound. In this room because fetching a template is what it tells of.
#pragma once

namespace modMain {

/// Plays alert.wav from the program folder and returns at once. Silent without the file or a sound device.
void PlayAlert();

} // namespace modMain
