// Of the shared routines (modMain), the sound. In this room because fetching a template is what it tells of.
#pragma once

namespace modMain {

/// Plays alert.wav from the program folder and returns at once. No file or no sound device: silence.
void PlayAlert();

} // namespace modMain
