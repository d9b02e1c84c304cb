#include "gui/window/SXWindowToolbar.h"

#include "gui/panels/SXIcons.h"
#include "gui/panels/SXItemStateView.h"
#include "workspace/SXWorkspaceScheduler.h"

#include <QAction>
#include <QMainWindow>
#include <QToolBar>

SXWindowToolbar::SXWindowToolbar(QMainWindow& window, const SXContainerStore& store,
                                 SXWorkspaceScheduler& scheduler)
    : QObject(&window)
    , m_store(store) {
    m_toolBar = window.addToolBar(tr("Toolbar"));
    m_toolBar->setObjectName(QStringLiteral("toolbar"));
    m_toolBar->setMovable(false);
    m_toolBar->setFloatable(false);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_toolBar->setIconSize({24, 24});

    add(SXCommand::Start, tr("Start"), QStringLiteral("startConverter"),
        QStringLiteral("media-playback-start"));
    add(SXCommand::TagEditor, tr("Tags"), QStringLiteral("metadata"),
        QStringLiteral("document-properties"));
    add(SXCommand::FileInfo, tr("Info"), QStringLiteral("info"),
        QStringLiteral("dialog-information"));
    auto* spacer = new QWidget(m_toolBar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_toolBar->addWidget(spacer);
    m_stateView = new SXItemStateView(m_toolBar);
    m_toolBar->addWidget(m_stateView);
    auto* spacer2 = new QWidget(m_toolBar);
    spacer2->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    m_toolBar->addWidget(spacer2);
    add(SXCommand::Preferences, tr("Preferences"), QStringLiteral("preference"),
        QStringLiteral("preferences-system"));
    add(SXCommand::Help, tr("Help"), QStringLiteral("help"), QStringLiteral("help-contents"));

    connect(&m_store, &SXContainerStore::appStateChanged, this,
            &SXWindowToolbar::validateToolbarItems);
    connect(&m_store, &SXContainerStore::listChanged, this, &SXWindowToolbar::validateToolbarItems);
    connect(&m_store, &SXContainerStore::selectionChanged, this,
            &SXWindowToolbar::validateToolbarItems);
    connect(&m_store, &SXContainerStore::tabCountsChanged, this,
            &SXWindowToolbar::validateToolbarItems);
    connect(&m_store, &SXContainerStore::appStateChanged, m_stateView,
            &SXItemStateView::updateForAppState);
    connect(&scheduler, &SXWorkspaceScheduler::totalProgressChanged, m_stateView,
            &SXItemStateView::updateConverterProgress);
    validateToolbarItems();
}

QAction* SXWindowToolbar::add(SXCommand command, const QString& text, const QString& image,
                              const QString& themeIcon) {
    QAction* action = m_toolBar->addAction(SXIcons::icon(image, themeIcon), text);
    action->setToolTip(text);
    connect(action, &QAction::triggered, this,
            [this, command] { Q_EMIT commandTriggered(command); });
    m_actions.insert(command, action);
    return action;
}

void SXWindowToolbar::validateToolbarItems() {
    const int state = m_store.enumAppState();
    const int total = m_store.getTotalNeedConvertMusic();
    const bool selected = m_store.isSelectedMusic();
    for (auto it = m_actions.cbegin(); it != m_actions.cend(); ++it)
        it.value()->setEnabled(sxValidateToolbarCommand(it.key(), state, total, selected));
    const SXToolbarLook look = sxStartToolbarLook(state);
    QAction* start = m_actions.value(SXCommand::Start);
    start->setText(look.label);
    start->setToolTip(look.toolTip);
    start->setIcon(SXIcons::icon(look.image, state == AppStateConverting
                                                 ? QStringLiteral("media-playback-stop")
                                                 : QStringLiteral("media-playback-start")));
}
