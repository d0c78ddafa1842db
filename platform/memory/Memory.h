#pragma once

// What the game gives back to the system. On systems without the means, and in builds for debugging, nothing
// happens and the game only holds more memory.
namespace Memory {

// Lets the heap return large blocks at once, and all threads share it. Called first of all.
void ShareHeap();

// Returns the holes that freed blocks have left in the heap.
void ReturnHoles();

// Returns the pages that hold the code of loaded libraries, for code that is needed only for moments; those
// that are used again come back from the system's cache. `name`: a part of the names of their files; of all
// when empty.
void ReturnCode(const char* name);

}  // namespace Memory
