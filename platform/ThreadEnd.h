// Work for the end of a thread. Safer than the destructor of a thread_local object,
// which some compilers run when the thread's other variables are gone already.
#pragma once

// Calls Work(Value) when the calling thread ends. One value a thread, and one Work
// in the whole program; Value is not null. The main thread may end without it.
void AtThreadEnd(void (*Work)(void* Value), void* Value);
