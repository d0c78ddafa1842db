#pragma once

// The program's start-up, over the toolkit's application object, which must exist. Checks the system font,
// then either shows the notice window and ends, or runs the game window until it is closed. Returns the
// process's exit status.
namespace mdlMain {

int Main();

}  // namespace mdlMain
