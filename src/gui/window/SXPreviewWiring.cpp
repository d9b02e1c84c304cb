#include "gui/window/SXPreviewWiring.h"

#include "gui/panels/SXItemStateView.h"
#include "workspace/SXWorkspace.h"

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QShortcut>

namespace {
// Seconds on a steady clock, for the slider's throttle.
double steadySeconds() {
    static QElapsedTimer clock;
    if (!clock.isValid())
        clock.start();
    return double(clock.nsecsElapsed()) / 1e9;
}
} // namespace

SXPreviewWiring::SXPreviewWiring(QWidget& window, QAbstractItemView& list, SXItemStateView& strip,
                                 SXWorkspace& workspace)
    : QObject(&window) {
    SXWorkspace* ws = &workspace;
    auto* space = new QShortcut(QKeySequence(Qt::Key_Space), &list);
    space->setContext(Qt::WidgetWithChildrenShortcut);
    connect(space, &QShortcut::activated, ws, &SXWorkspace::playSelected);
    auto* pause = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_Space), &window);
    connect(pause, &QShortcut::activated, ws, &SXWorkspace::pauseOrResumePreview);

    connect(&strip, &SXItemStateView::sliderMoved, ws,
            [ws](double percent) { ws->sliderDown(percent, steadySeconds()); });
    connect(&strip, &SXItemStateView::pauseClicked, ws, &SXWorkspace::pauseOrResumePreview);
    connect(ws, &SXWorkspace::previewProgress, &strip, &SXItemStateView::musicPlayingProgress);
    connect(ws, &SXWorkspace::previewChanged, &strip,
            [&strip, ws] { strip.setPaused(ws->isPreviewPaused()); });
    connect(ws, &SXWorkspace::scrollToRowRequested, &list, [&list](int row) {
        if (list.model())
            list.scrollTo(list.model()->index(row, 0));
    });
}
