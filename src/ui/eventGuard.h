#pragma once

#include "values/runtimeError.h"

#include <QObject>

#include <exception>
#include <functional>
#include <type_traits>
#include <utility>

namespace ui {

/// Ends the program at once: no window is asked, no more of the program's own code runs.
void endProgram(int exitCode);

/// Shows the box of an error that no trap caught and ends the program with exit code 1.
void endOnError(const values::RuntimeError& error);

/// The same for what is no RuntimeError: a fault of the program itself.
void endOnError(const std::exception& error);

/// Replaces what ends the program (std::quick_exit), for tests. An empty function brings it back.
void setProgramEnd(std::function<void(int exitCode)> end);

/// Runs an event's code. What no trap caught ends here: nothing is ever thrown through Qt's event loop. A command that
/// the person cancelled is over, and no more.
template <typename Routine>
void guard(Routine&& routine)
{
    try {
        std::forward<Routine>(routine)();
    } catch (const values::RuntimeError& error) {
        if (error.number() != static_cast<int>(values::Fault::Cancelled))
            endOnError(error);
    } catch (const std::exception& error) {
        endOnError(error);
    }
}

/// Connects a signal to a handler behind the guard: a member function of the context, or anything that can be called.
/// The handler takes all of the signal's arguments or none.
template <typename Sender, typename Signal, typename Context, typename Handler>
void onEvent(const Sender* sender, Signal signal, Context* context, Handler handler)
{
    QObject::connect(sender, signal, context,
                     [context, handler = std::move(handler)]<typename... Arguments>(Arguments&&... arguments) {
                         guard([&] {
                             if constexpr (std::is_member_function_pointer_v<Handler>) {
                                 if constexpr (std::is_invocable_v<Handler, Context*, Arguments...>)
                                     std::invoke(handler, context, std::forward<Arguments>(arguments)...);
                                 else
                                     std::invoke(handler, context);
                             } else if constexpr (std::is_invocable_v<const Handler&, Arguments...>) {
                                 std::invoke(handler, std::forward<Arguments>(arguments)...);
                             } else {
                                 std::invoke(handler);
                             }
                         });
                     });
}

} // namespace ui
