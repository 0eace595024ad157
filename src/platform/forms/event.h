// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <utility>

namespace forms {

/// Names the handler that runs, for as long as the object lives. A failure that leaves the handler is reported under
/// the innermost name.
class HandlerScope {
public:
    HandlerScope(const QString& owner, const char* event);
    ~HandlerScope();
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;

private:
    QString owner_;
    const char* event_;
    int exceptionsAtEntry_;
};

/// An event of a control: one handler, assigned by the screen. It runs to its end inside the call that caused it.
template <class... Args>
class Event {
public:
    /// Assigns the handler; an earlier one is replaced.
    template <class Handler>
    Event& operator=(Handler handler)
    {
        handler_ = std::move(handler);
        return *this;
    }

    /// True when a handler is assigned.
    explicit operator bool() const { return static_cast<bool>(handler_); }

    /// Runs the handler, if there is one, under the name owner_event.
    void fire(const QString& owner, const char* event, Args... args) const
    {
        if (!handler_)
            return;
        const HandlerScope scope(owner, event);
        handler_(args...);
    }

private:
    std::function<void(Args...)> handler_;
};

} // namespace forms
