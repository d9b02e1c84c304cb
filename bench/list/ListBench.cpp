// Opens a workspace window offscreen, drops a folder of files on its list as a file manager
// does, and measures: the wall time from the drop to the last row shown, the longest time the
// main thread was blocked (a 5 ms timer that notices its own lateness) during the add and while
// the whole list scrolls by pages, and the resident memory per item with the window.
//   sonoria-bench-list FOLDER        (run by bench/list.sh, which prepares the environment)

#include "MainThreadWatch.h"
#include "gui/list/SXItemListView.h"
#include "gui/window/SXMainAppController.h"
#include "workspace/SXWorkspace.h"

#include <QApplication>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFile>
#include <QMimeData>
#include <QScrollBar>
#include <QTimer>
#include <QUrl>
#include <cstdio>

namespace {

long residentKb() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    }
    return -1;
}

// Calls `done` once the viewport has painted after `armed` was set.
class PaintWatch : public QObject {
public:
    std::function<void()> done;
    bool armed = false;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (armed && event->type() == QEvent::Paint) {
            armed = false;
            QTimer::singleShot(0, this, done);
        }
        return false;
    }
};

void dropFolder(SXItemListView* view, const QString& folder) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(folder)});
    const QPoint at(10, 10);
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &enter);
    QDragMoveEvent move(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &move);
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &drop);
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: sonoria-bench-list FOLDER\n");
        return 2;
    }
    const QString folder = QString::fromLocal8Bit(argv[1]);
    SXMainAppController window;
    window.workspace().tabs().addDefaultTabs();
    window.resize(980, 640);
    window.show();
    auto* view = window.findChild<SXItemListView*>(QStringLiteral("itemList"));
    MainThreadWatch monitor;
    monitor.start();
    PaintWatch watch;
    view->viewport()->installEventFilter(&watch);
    QElapsedTimer clock;
    long before = 0;
    qint64 addMs = 0, addBlocked = 0;
    int step = 0;

    const auto scrollStep = [&] {
        QScrollBar* bar = view->verticalScrollBar();
        if (bar->value() >= bar->maximum()) {
            const long after = residentKb();
            const int items = view->model()->rowCount();
            std::printf("items=%d\nadd_ms=%lld\nadd_blocked_ms=%lld\nscroll_blocked_ms=%lld\n"
                        "scroll_pages=%d\nrss_before_kb=%ld\nrss_after_kb=%ld\n"
                        "kb_per_item=%.2f\n",
                        items, addMs, addBlocked, qint64(monitor.longestBlockMs()), step, before,
                        after, items ? double(after - before) / items : 0.0);
            // Not quit(): that asks the windows to close, and a window with items asks back.
            QCoreApplication::exit(0);
            return;
        }
        ++step;
        watch.armed = true;
        bar->setValue(bar->value() + bar->pageStep());
    };
    const auto lastRowShown = [&] {
        addMs = clock.elapsed();
        addBlocked = qint64(monitor.longestBlockMs());
        // Back to the top, then page by page to the end.
        watch.done = scrollStep;
        view->scrollToTop();
        monitor.start();
        scrollStep();
    };
    QObject::connect(&window.workspace().addRun(), &SXAddRun::loadFinished, &window, [&] {
        watch.done = lastRowShown;
        watch.armed = true;
        view->scrollToBottom();
        view->viewport()->update();
    });
    QTimer::singleShot(500, &window, [&] {
        before = residentKb();
        monitor.start();
        clock.start();
        dropFolder(view, folder);
    });
    return QApplication::exec();
}
