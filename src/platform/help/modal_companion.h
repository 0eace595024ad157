// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>

class QWidget;

namespace help {

/// Keeps a window usable while the program waits for the answer to a modal one. The toolkit gives no input to windows
/// that don't belong to the modal one in front, so this one is made to belong to whichever that is. It is a matter of
/// the toolkit alone: the window system goes on to see a window of its own.
class ModalCompanion : public QObject {
public:
    explicit ModalCompanion(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void follow();

    QWindow& window_;
    QPointer<QWindow> modal_;
};

} // namespace help
