// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/report/page_view.h"
#include "platform/report/progress.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;
class QPushButton;
class QSpinBox;

namespace report {

class PreviewBar;

/// The window of an open report: pages to look at, from which it is printed or saved. It is a window of its own beside
/// the screens, which the user may leave open, and it is destroyed when it is closed. Zoom and paper are those of the
/// last window.
class Preview : public QWidget {
public:
    /// `name` is the name of the window for the system; `error` tells the user that printing or saving has failed.
    Preview(const QString& name, std::shared_ptr<const Document> document, std::function<void()> error);

    /// Puts the window in front of the screens.
    void open();

    /// The number of the page that is shown, counted from 1, and the count of all.
    int page() const { return view_->page() + 1; }
    int pageCount() const { return pages_->count(); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void look();
    void react();
    void layOut();
    QPushButton* button(const char* name, const QString& caption, const char* icon, const QString& toolTip);
    void openLarge();
    void shortcut(const QKeySequence& keys, const std::function<void()>& action);
    std::function<void()> handler(const std::function<void()>& action);

    /// How printing or saving came out, and what is told where it is done.
    struct Ending {
        Outcome outcome = Outcome::Failed;
        QString done{};
        QString failed{};
    };

    void showState();
    void speak();
    void setPaper(int index);
    void pickZoom(int index, std::optional<QPoint> about = {});
    void zoomBy(int direction, std::optional<QPoint> about = {});
    void backToPage();
    void answerKey(int key);
    void goTo(int page) { view_->setPage(page - 1); }
    void print();
    void saveAs();
    Outcome save(const QString& path);
    void finish(const std::function<Ending()>& run);
    void tell(const Ending& ending);

    std::shared_ptr<const Document> document_;
    std::shared_ptr<const Pages> pages_;
    std::shared_ptr<const Pages> spoken_; // of which the text was told last
    std::function<void()> error_;

    PageView* view_ = nullptr;
    PreviewBar* bar_ = nullptr;
    QPushButton* first_ = nullptr;
    QPushButton* previous_ = nullptr;
    QSpinBox* page_ = nullptr;
    QLabel* count_ = nullptr;
    QPushButton* next_ = nullptr;
    QPushButton* last_ = nullptr;
    QPushButton* zoomOut_ = nullptr;
    QComboBox* zoom_ = nullptr;
    QPushButton* zoomIn_ = nullptr;
    QComboBox* paper_ = nullptr;
    QPushButton* print_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* close_ = nullptr;
    QLabel* status_ = nullptr;
};

} // namespace report
