#include "gui/panels/SXItemStateView.h"

#include "gui/panels/SXIcons.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QProxyStyle>
#include <QSlider>
#include <QToolButton>

namespace {
// A click on the play position's track goes to that point, not a page towards it: the track is
// a time line, and a page of it is an arbitrary jump.
class ClickToSeekStyle final : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returnData) const override {
        if (hint == SH_Slider_AbsoluteSetButtons)
            return Qt::LeftButton;
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
};
} // namespace

SXItemStateView::SXItemStateView(QWidget* parent)
    : QWidget(parent) {
    setObjectName(QStringLiteral("stateStrip"));
    setAccessibleName(tr("Status"));
    setMinimumSize(260, 44);
    setMaximumSize(400, 44);
    _tfName = new QLabel(this);
    _tfName->setAlignment(Qt::AlignCenter);
    _tfPlayTime = new QLabel(this);
    _tfMusicTime = new QLabel(this);
    _priProgress = new QProgressBar(this);
    _priProgress->setRange(0, 100);
    _priProgress->setTextVisible(false);
    _priProgress->setAccessibleName(tr("Total progress"));
    _slider = new QSlider(Qt::Horizontal, this);
    _slider->setRange(0, 100);
    _slider->setObjectName(QStringLiteral("playPosition"));
    _slider->setAccessibleName(tr("Play position"));
    auto* seekStyle = new ClickToSeekStyle;
    seekStyle->setParent(_slider);
    _slider->setStyle(seekStyle);
    // Seeking with the mouse leaves the keyboard on the list, where Space still stops the
    // preview; Tab still reaches the slider for its arrow keys.
    _slider->setFocusPolicy(Qt::TabFocus);
    m_pauseButton = new QToolButton(this);
    m_pauseButton->setObjectName(QStringLiteral("btnPause"));
    m_pauseButton->setAutoRaise(true);
    m_pauseButton->setIconSize({12, 12});
    setPaused(false);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(8, 2, 8, 2);
    grid->setVerticalSpacing(0);
    grid->addWidget(_tfName, 0, 0, 1, 4);
    grid->addWidget(m_pauseButton, 1, 0);
    grid->addWidget(_tfPlayTime, 1, 1);
    grid->addWidget(_slider, 1, 2);
    grid->addWidget(_priProgress, 1, 0, 1, 4);
    grid->addWidget(_tfMusicTime, 1, 3);
    // Every user action on the slider (drag, click on the groove, keys) is one slider event;
    // the position is already the new one when the action is reported.
    connect(_slider, &QSlider::actionTriggered, this,
            [this] { Q_EMIT sliderMoved(double(_slider->sliderPosition())); });
    connect(m_pauseButton, &QToolButton::clicked, this, &SXItemStateView::pauseClicked);
    showLook();
}

void SXItemStateView::updateForAppState(int state, const SXMusicInfoPtr& item) {
    m_model.updateForAppState(state, item);
    showLook();
}

void SXItemStateView::updateConverterProgress(double percent) {
    if (m_model.updateConverterProgress(percent))
        showLook();
}

void SXItemStateView::musicPlayingProgress(const SXMusicInfoPtr& item, double seconds) {
    if (m_model.musicPlayingProgress(item, seconds))
        showLook();
}

void SXItemStateView::showLook() {
    const SXStateStripModel::Look& look = m_model.look();
    _tfName->setVisible(look.nameShown);
    _tfName->setText(look.name);
    _tfPlayTime->setVisible(look.timesShown);
    _tfPlayTime->setText(look.playTime);
    _tfMusicTime->setVisible(look.timesShown);
    _tfMusicTime->setText(look.musicTime);
    _priProgress->setVisible(look.progressShown);
    _priProgress->setValue(int(look.progress));
    _slider->setVisible(look.sliderShown);
    m_pauseButton->setVisible(look.sliderShown);
    if (!_slider->isSliderDown())
        _slider->setValue(int(look.slider));
    setAccessibleDescription(look.nameShown ? look.name : QString());
    update();
}

void SXItemStateView::setPaused(bool paused) {
    const QString text = paused ? tr("Resume (Shift+Space)") : tr("Pause (Shift+Space)");
    m_pauseButton->setIcon(
        paused ? SXIcons::icon(QStringLiteral("play"), QStringLiteral("media-playback-start"))
               : SXIcons::icon(QStringLiteral("pause"), QStringLiteral("media-playback-pause")));
    m_pauseButton->setToolTip(text);
    m_pauseButton->setAccessibleName(text);
}

void SXItemStateView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::AlternateBase));
    painter.drawRoundedRect(rect().adjusted(1, 1, -1, -1), 5, 5);
    const SXStateStripModel::Look& look = m_model.look();
    if (!look.nameShown && !look.progressShown) {
        const QRect mark(rect().center() - QPoint(14, 14), QSize(28, 28));
        SXIcons::icon(QStringLiteral("slog_small")).paint(&painter, mark);
    }
}
