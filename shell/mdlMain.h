#pragma once

// The program's start-up; the QApplication must exist. Checks the system font, then either shows the
// notice window and ends, or runs the game window until it is closed. Returns the process's exit status.
namespace mdlMain {

int Main();

}  // namespace mdlMain
