// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <utility>

namespace forms {

namespace detail {
/// Remembers under which name the exception that is being handled left a handler; the innermost name stays.
void failedIn(const QString& owner, const char* event);

[[noreturn]] void assignedTwice(const QString& owner, const char* event);
} // namespace detail

/// Runs a handler under the name owner_event: a failure that leaves it is reported under the innermost name.
template <class Handler>
void runHandler(const QString& owner, const char* event, Handler&& handler)
{
    try {
        handler();
    } catch (...) {
        detail::failedIn(owner, event);
        throw;
    }
}

/// An event of a control: one handler, assigned by the screen. It runs to its end inside the call that caused it.
template <class... Args>
class Event {
public:
    /// The owner's name is read when it is needed, so that it may be set later than the event is made.
    Event(const QString& owner, const char* name)
        : owner_(owner)
        , name_(name)
    {
    }
    Event(const Event&) = delete;

    /// Assigns the handler. An event that has one takes no other: that would silence the first, so the process ends
    /// and says which event it is. Where two things are to happen, one handler does both.
    template <class Handler>
    Event& operator=(Handler handler)
    {
        if (handler_)
            detail::assignedTwice(owner_, name_);
        handler_ = std::move(handler);
        return *this;
    }

    /// True when a handler is assigned.
    explicit operator bool() const { return static_cast<bool>(handler_); }

    /// Runs the handler, if there is one.
    void fire(Args... args) const
    {
        if (handler_)
            runHandler(owner_, name_, [&] { handler_(args...); });
    }

private:
    const QString& owner_;
    const char* name_;
    std::function<void(Args...)> handler_;
};

} // namespace forms
