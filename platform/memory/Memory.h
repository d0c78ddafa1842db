#pragma once

// What the game gives back to the system. On systems without the means, nothing happens and the game only
// holds more memory.
namespace Memory {

// Lets the heap return large blocks at once, and all threads share it. Called first of all.
void ShareHeap();

// Returns the holes that freed blocks have left in the heap.
void ReturnHoles();

// Returns the pages that hold the code of a loaded library, for code that is needed only for moments; they
// are read in again on use. `name`: a part of its file's name.
void ReturnCode(const char* name);

}  // namespace Memory
