#pragma once
// The handlers' error rule: a failing statement is skipped, a failing condition
// enters its branch, and no message is shown. Each statement whose result rests
// on the rule goes through one of these, never a whole handler.
#include <utility>
#include "support/RuntimeError.h"

// Runs one statement; a run-time error skips the rest of it.
template <typename Statement>
void Skip(Statement&& statement)
{
    try {
        std::forward<Statement>(statement)();
    } catch (const RuntimeError&) {
    }
}

// Evaluates one condition; a run-time error answers true, so the branch is entered.
template <typename Condition>
bool Holds(Condition&& condition)
{
    try {
        return static_cast<bool>(std::forward<Condition>(condition)());
    } catch (const RuntimeError&) {
        return true;
    }
}
