// Reading on any thread what the main thread replaces and destroys. A reader
// waits for nobody; who takes something away waits until nobody looks at it.
//
//     const TReadSection Section;               // any thread
//     if (const TThing* Thing = Current.load()) ...
//
//     TThing* Old = Current.exchange(New);      // main thread
//     AwaitReaders();
//     delete Old;
//
// The pointers are std::atomic, and their accesses sequentially consistent.
#pragma once

// Sections may be nested. Short: the main thread may be waiting.
class TReadSection {
public:
    TReadSection();
    ~TReadSection();
    TReadSection(const TReadSection&) = delete;
    TReadSection& operator=(const TReadSection&) = delete;
};

// Returns when every section that was open at the call has ended.
// Requires: the calling thread is in none, and holds no lock that a reader takes.
void AwaitReaders();
