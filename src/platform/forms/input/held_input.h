// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace forms {

/// Input that comes behind the answer to a question, for InputFilter.
///
/// The toolkit hands on all that waits in its queue before the event loop of a box returns, so that a click behind the
/// answer would reach a screen whose handler is still in the middle of what it asked for. From the moment that a box, a
/// modal screen, a dialogue or a menu closes, input waits until the handler that opened it has ended. Then it counts if
/// its window is in front and nothing else has been asked meanwhile; else it is dropped.
class HeldInput : public QObject {
public:
    /// Delivers an event that has waited.
    using Delivery = std::function<void(QWindow& window, QEvent& event)>;

    explicit HeldInput(Delivery deliver)
        : deliver_(std::move(deliver))
    {
    }

    /// A window for which its opener may wait comes or goes.
    void opened(QWidget& window);
    void closed(QWidget& window);

    /// True while input has to wait.
    bool isWaiting();

    /// True when the event has to wait: a copy is kept.
    bool keeps(QWindow& window, const QEvent& event);

    /// A handler has returned.
    void handlerEnded();

private:
    struct Question {
        const QWidget* window;
        int loop; // level of the event loop in which it was asked
    };
    struct Kept {
        QPointer<QWindow> window;
        std::unique_ptr<QEvent> event;
    };

    bool holds() const;
    void handOnIn(int milliseconds);
    void handOn();

    Delivery deliver_;
    std::vector<Question> questions_;
    std::deque<Kept> kept_;
    std::optional<int> answered_; // level of the loop to which an answer leads back
    const QEvent* passing_ = nullptr; // on its way to its window now
};

} // namespace forms
