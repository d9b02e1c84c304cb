#include "gui/window/SXPreviewWiring.h"

#include "gui/panels/SXItemStateView.h"
#include "workspace/SXWorkspacePreview.h"

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
                                 SXWorkspacePreview& preview)
    : QObject(&window) {
    SXWorkspacePreview* ws = &preview;
    auto* space = new QShortcut(QKeySequence(Qt::Key_Space), &list);
    space->setContext(Qt::WidgetWithChildrenShortcut);
    connect(space, &QShortcut::activated, ws, &SXWorkspacePreview::playSelected);
    auto* pause = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_Space), &window);
    connect(pause, &QShortcut::activated, ws, &SXWorkspacePreview::pauseOrResumePreview);

    connect(&strip, &SXItemStateView::sliderMoved, ws,
            [ws](double percent) { ws->sliderDown(percent, steadySeconds()); });
    connect(&strip, &SXItemStateView::pauseClicked, ws, &SXWorkspacePreview::pauseOrResumePreview);
    connect(ws, &SXWorkspacePreview::previewProgress, &strip,
            &SXItemStateView::musicPlayingProgress);
    connect(ws, &SXWorkspacePreview::previewChanged, &strip,
            [&strip, ws] { strip.setPaused(ws->isPreviewPaused()); });
    connect(ws, &SXWorkspacePreview::scrollToRowRequested, &list, [&list](int row) {
        if (list.model())
            list.scrollTo(list.model()->index(row, 0));
    });
}
