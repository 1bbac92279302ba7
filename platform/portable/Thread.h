// What each thread with windows has: queues, hooks, timers, focus and keys.
#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <vector>

#include "platform/portable/Window.h"
#include "platform/portable/winbase.h"

using TClock = std::chrono::steady_clock;

// A message on its way from one thread to another.
struct TSent {
    HWND Window;
    UINT Message;
    WPARAM WParam;
    LPARAM LParam;
    LRESULT Result = 0;
    bool Done = false;
    bool Replied = false;
};

struct TThreadTimer {
    HWND Window;
    UINT_PTR Id;
    TIMERPROC Proc;
    std::chrono::milliseconds Period;
    TClock::time_point Due;
};

struct THook {
    HHOOK Handle;
    int Kind;
    HOOKPROC Proc;
};

struct TThread {
    DWORD Id = 0;
    std::deque<MSG> Posted;
    std::deque<MSG> Input; // keys and mouse
    std::deque<std::shared_ptr<TSent>> Sent;
    std::vector<std::shared_ptr<TSent>> Receiving; // innermost last
    std::vector<TThreadTimer> Timers;
    std::array<std::vector<THook>, 16> Hooks; // by kind + 1; the newest last
    HHOOK CurrentHook = nullptr;              // the one that runs, and its kind
    int CurrentKind = 0;
    std::array<BYTE, 256> Keys{};
    HWND Active = nullptr;
    HWND Focus = nullptr;
    HWND Capture = nullptr;
    HWND MenuOwner = nullptr; // of the menu that is tracked
    bool EndMenu = false;
    bool Quit = false;
    int QuitCode = 0;
    bool Ended = false;
    DWORD MessageTime = 0;
    POINT MessagePoint{};
    UINT_PTR NextTimer = 1;
};

// The calling thread's record, made on its first use.
const std::shared_ptr<TThread>& CurrentThread();

// The record of a running thread; null when it has none.
std::shared_ptr<TThread> FindThread(DWORD Id);

// Signalled whenever something arrives in any queue or a sent message is done.
std::condition_variable_any& StateChanged();

// Runs the window procedures for what other threads have sent to this one.
void ReceiveSent();

// Calls the window's own procedure, with the call hooks around it, when the
// window belongs to this thread.
LRESULT CallWindow(HWND Window, UINT Message, WPARAM WParam, LPARAM LParam);

// Forgets what waits for a window that goes away.
void ForgetWindow(HWND Window);

// Marks, in the point of a queued message, that it comes from the keyboard.
constexpr LONG KeyboardMark = -0x7ffe;

// Keeps the thread's key state in step with a key message that it takes out.
void FollowKeys(TThread& Thread, const MSG& Message);

// Calls the hooks of this thread; 0 without any.
bool HasHooks(int Kind);
LRESULT CallHooks(int Kind, int Code, WPARAM WParam, LPARAM LParam);
