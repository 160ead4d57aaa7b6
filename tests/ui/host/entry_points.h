// What the modules of the drawing runtime that tests load tell about their entry points.
#pragma once

/// The last call of an entry point.
struct EntryCall {
    int count;  ///< of calls so far
    int name;   ///< 1 for "ktrxEntryPoint", 2 for "acrxEntryPoint"
    int message;
    void* packet;
};

/// An entry point answers this and the message's number.
constexpr int kEntryAnswer = 40;

using LastEntryCall = const EntryCall* (*)();  ///< exported as "lastEntryCall"
