#pragma once

namespace modMain {

/// Plays alert.wav from the program folder and returns at once. No file or no sound device: silence.
void PlayAlert();

} // namespace modMain
