#include "gui/list/SXItemRowDelegate.h"

#include "gui/list/SXItemListModel.h"
#include "gui/panels/SXIcons.h"
#include "workspace/SXItemRowLook.h"
#include "workspace/SXReadableNames.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>

namespace {
constexpr int kButton = 20;

QRect buttonAt(int x, const QRect& row) {
    return QRect(x, row.top() + (row.height() - kButton) / 2, kButton, kButton);
}

SXMusicInfoPtr itemOf(const QModelIndex& index) {
    return index.data(SXItemListModel::ItemRole).value<SXMusicInfoPtr>();
}

bool isKey(const QStyleOptionViewItem& option) {
    return option.widget && option.widget->isActiveWindow();
}
} // namespace

SXItemRowGeometry SXItemRowGeometry::of(const QRect& row, const QFontMetrics* metrics) {
    SXItemRowGeometry g;
    g.play = buttonAt(row.left() + 6, row);
    g.right = buttonAt(row.right() - 6 - kButton, row);
    g.state = buttonAt(g.right.left() - 8 - kButton, row);
    const int left = g.play.right() + 10;
    const int right = g.state.left() - 10;
    const int gap = 8;
    int codecWidth = 56, durationWidth = 64;
    if (metrics) {
        const int room = metrics->averageCharWidth();
        codecWidth = std::max(codecWidth, metrics->horizontalAdvance(SXReadableNames::codecName(
                                              QStringLiteral("pcm_s24le"))) +
                                              room);
        durationWidth =
            std::max(durationWidth, metrics->horizontalAdvance(QStringLiteral("0:00:00")) + room);
    }
    g.codec = QRect(right - codecWidth, row.top(), codecWidth, row.height());
    g.duration =
        QRect(g.codec.left() - gap - durationWidth, row.top(), durationWidth, row.height());
    const int flexible = std::max(0, g.duration.left() - gap - left);
    const int nameWidth = flexible * 3 / 5;
    g.name = QRect(left, row.top(), nameWidth, row.height());
    g.artist = QRect(left + nameWidth + gap, row.top(), std::max(0, flexible - nameWidth - gap),
                     row.height());
    return g;
}

SXItemRowDelegate::SXItemRowDelegate(const SXContainerStore& store, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_store(store) {}

QIcon SXItemRowDelegate::icon(const QString& name) const {
    auto found = m_icons.constFind(name);
    if (found == m_icons.cend())
        found = m_icons.insert(name, SXIcons::icon(name));
    return *found;
}

QSize SXItemRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const {
    // Rows take the list's width (the view stretches them); the hint is only the least of it.
    return QSize(kMinimumRowWidth, kRowHeight);
}

void SXItemRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
    QStyleOptionViewItem background = option;
    initStyleOption(&background, index);
    background.text.clear();
    const QWidget* widget = option.widget;
    QStyle* style = widget ? widget->style() : QApplication::style();
    style->drawPrimitive(QStyle::PE_PanelItemViewItem, &background, painter, widget);

    const SXItemRowGeometry geometry = SXItemRowGeometry::of(option.rect, &option.fontMetrics);
    paintLabels(painter, option, geometry, index);

    const SXItemRowLook look = SXItemRowLookRules::rowLook(
        m_store, itemOf(index), index.row() == m_hoveredRow, m_draggingRows, isKey(option));
    // On the selection colour the grey and blue pictures would vanish: they sit on a disc of
    // the list's own background there.
    const bool selected = option.state & QStyle::State_Selected;
    const auto button = [&](const QString& image, const QRect& rect) {
        if (image.isEmpty())
            return;
        if (selected)
            paintDisc(painter, rect, option.palette.color(QPalette::Base));
        icon(image).paint(painter, rect);
    };
    button(look.playImage, geometry.play);
    button(look.state.image, geometry.state);
    if (look.state.pieFraction >= 0)
        paintPie(painter, geometry.state, look.state.pieFraction);
    button(look.rightImage, geometry.right);
}

void SXItemRowDelegate::paintDisc(QPainter* painter, const QRect& button, const QColor& colour) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(colour);
    painter->drawEllipse(QRectF(button).adjusted(-1, -1, 1, 1));
    painter->restore();
}

void SXItemRowDelegate::paintLabels(QPainter* painter, const QStyleOptionViewItem& option,
                                    const SXItemRowGeometry& geometry,
                                    const QModelIndex& index) const {
    const SXItemRowTexts texts = SXItemRowLookRules::textsForItem(itemOf(index));
    const bool selected = option.state & QStyle::State_Selected;
    const QPalette::ColorGroup group =
        option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    const QColor main =
        option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
    QColor secondary = main;
    if (!selected)
        secondary.setAlphaF(0.65f);
    const auto draw = [&](const QRect& rect, const QString& text, const QColor& colour,
                          Qt::Alignment align) {
        painter->setPen(colour);
        painter->drawText(rect, int(align | Qt::AlignVCenter),
                          option.fontMetrics.elidedText(text, Qt::ElideRight, rect.width()));
    };
    painter->save();
    // A mark before the name when the output lost some tags; the tool tip says which.
    draw(geometry.name, texts.tagsLost ? QStringLiteral("⚠ ") + texts.name : texts.name, main,
         Qt::AlignLeft);
    draw(geometry.artist, texts.artist, secondary, Qt::AlignLeft);
    draw(geometry.duration, texts.duration, secondary, Qt::AlignRight);
    draw(geometry.codec, texts.codec, secondary, Qt::AlignLeft);
    painter->restore();
}

void SXItemRowDelegate::paintPie(QPainter* painter, const QRect& button, double fraction) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(pieColor());
    const QPointF centre = QRectF(button).center();
    const QRectF circle(centre.x() - 10, centre.y() - 10, 20, 20);
    // From angle 0 counter-clockwise, as a share of the full turn.
    painter->drawPie(circle, 0, int(fraction * 360.0 * 16.0));
    painter->restore();
}

bool SXItemRowDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                    const QStyleOptionViewItem& option, const QModelIndex& index) {
    const bool press =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    const bool release = event->type() == QEvent::MouseButtonRelease;
    if (!press && !release)
        return QStyledItemDelegate::editorEvent(event, model, option, index);
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if (mouse->button() != Qt::LeftButton)
        return false;
    const QPoint at = mouse->position().toPoint();
    if (!isOnButton(option, index, at))
        return false;
    const bool onRight = isOnRightButton(option, index, at);
    if (release) {
        if (onRight)
            Q_EMIT rightButtonClicked(index);
        else
            Q_EMIT playButtonClicked(index);
    }
    return true;
}

bool SXItemRowDelegate::isOnRightButton(const QStyleOptionViewItem& option,
                                        const QModelIndex& index, const QPoint& at) const {
    if (!SXItemRowGeometry::of(option.rect).right.contains(at))
        return false;
    return !SXItemRowLookRules::rowLook(m_store, itemOf(index), index.row() == m_hoveredRow,
                                        m_draggingRows, isKey(option))
                .rightImage.isEmpty();
}

bool SXItemRowDelegate::isOnButton(const QStyleOptionViewItem& option, const QModelIndex& index,
                                   const QPoint& at) const {
    return SXItemRowGeometry::of(option.rect).play.contains(at) ||
           isOnRightButton(option, index, at);
}

bool SXItemRowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                  const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (event && event->type() == QEvent::ToolTip &&
        SXItemRowGeometry::of(option.rect).state.contains(event->pos())) {
        const double progress = index.data(SXItemListModel::ProgressRole).toDouble();
        QToolTip::showText(event->globalPos(),
                           SXItemRowLookRules::stateButtonLook(progress).toolTip, view);
        return true;
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}
