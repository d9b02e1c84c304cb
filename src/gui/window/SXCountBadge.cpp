#include "gui/window/SXCountBadge.h"

#include "workspace/SXWorkspaceTexts.h"

#include <QPainter>

SXCountBadge::SXCountBadge(QWidget* parent)
    : QWidget(parent) {
    setFocusPolicy(Qt::NoFocus);
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    setFont(small);
    resize(sizeHint());
}

void SXCountBadge::setCount(const QString& label, int count) {
    m_count = count;
    setAccessibleName(SXWorkspaceTexts::tabAccessibleName(label, count));
    setToolTip(SXWorkspaceTexts::countText(count));
    resize(sizeHint());
    updateGeometry();
    update();
}

QSize SXCountBadge::sizeHint() const {
    const QFontMetrics metrics(font());
    const int height = metrics.height() + 2;
    const int width = std::max(height, metrics.horizontalAdvance(QString::number(m_count)) + 10);
    return {width, height};
}

void SXCountBadge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF pill = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(m_count > 0 ? QPalette::Highlight : QPalette::Mid));
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    painter.setPen(palette().color(m_count > 0 ? QPalette::HighlightedText : QPalette::Base));
    painter.drawText(rect(), Qt::AlignCenter, QString::number(m_count));
}
