#pragma once

#include "values/runtimeError.h"

#include <QObject>

#include <exception>
#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

namespace ui {

/// Ends the program at once: no window is asked, and after ProgramEnd no more of the program's own code runs.
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

/// Calls with as many of the first arguments as the callable takes.
template <typename Callable, typename Arguments, std::size_t... Kept>
void callWithFirst(Callable& callable, const Arguments& arguments, std::index_sequence<Kept...>)
{
    if constexpr (sizeof...(Kept) == 0 || std::is_invocable_v<Callable&, std::tuple_element_t<Kept, Arguments>...>)
        std::invoke(callable, std::get<Kept>(arguments)...);
    else
        callWithFirst(callable, arguments, std::make_index_sequence<sizeof...(Kept) - 1>());
}

/// The arguments that come before those of the signal: the context for a member function, else none.
template <typename Handler, typename Context>
auto leadingArguments(Context* context)
{
    if constexpr (std::is_member_function_pointer_v<Handler>)
        return std::tuple(context);
    else
        return std::tuple();
}

/// Connects a signal to a handler behind the guard: a member function of the context, or anything that can be called.
/// As with connect(), the handler need not take the last arguments of the signal.
template <typename Sender, typename Signal, typename Context, typename Handler>
void onEvent(const Sender* sender, Signal signal, Context* context, Handler handler)
{
    QObject::connect(sender, signal, context,
                     [context, handler = std::move(handler)]<typename... Arguments>(Arguments&&... arguments) {
                         const auto all = std::tuple_cat(leadingArguments<Handler>(context),
                                                         std::forward_as_tuple(std::forward<Arguments>(arguments)...));
                         constexpr std::size_t count = std::tuple_size_v<decltype(all)>;
                         guard([&] { callWithFirst(handler, all, std::make_index_sequence<count>()); });
                     });
}

} // namespace ui
