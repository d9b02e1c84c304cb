#pragma once

#include <QFontMetrics>

#include <QHash>
#include <QIcon>
#include <QStyledItemDelegate>

class SXContainerStore;

// Where the parts of one row sit: the play button on the left, the four labels, then the state
// button and the right button.
struct SXItemRowGeometry {
    QRect play, name, artist, duration, codec, state, right;
    // With `metrics`, the codec and duration columns are as wide as their usual texts need in
    // that font ("PCM 24-bit", "1:23:45" and their translations); the buttons never move.
    static SXItemRowGeometry of(const QRect& row, const QFontMetrics* metrics = nullptr);
};

// Paints the rows of the item list, 30 px each, from the items' cached fields: the play button
// (blank unless hovered or playing), name, artist, duration and codec, the state button with its
// picture or the orange pie of a conversion, and the right button under the mouse. What each
// part shows is the workspace's decision (SXItemRowLookRules); clicks on the two buttons are
// reported as signals.
class SXItemRowDelegate final : public QStyledItemDelegate {
    Q_OBJECT
public:
    static constexpr int kRowHeight = 30;
    // Narrower than this the columns would overlap; the list scrolls sideways instead.
    static constexpr int kMinimumRowWidth = 360;
    // The state button's pie, red 246, green 144, blue 45.
    static QColor pieColor() { return QColor(246, 144, 45); }

    SXItemRowDelegate(const SXContainerStore& store, QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

    // Whether `at` hits a button the row shows (the right button only while it is shown).
    bool isOnButton(const QStyleOptionViewItem& option, const QModelIndex& index,
                    const QPoint& at) const;
    // The row under the mouse (-1: none) and whether the list is dragging rows; set by the view.
    void setHoveredRow(int row) { m_hoveredRow = row; }
    int hoveredRow() const { return m_hoveredRow; }
    void setDraggingRows(bool dragging) { m_draggingRows = dragging; }

Q_SIGNALS:
    void playButtonClicked(const QModelIndex& index);
    void rightButtonClicked(const QModelIndex& index);

private:
    QIcon icon(const QString& name) const;
    bool isOnRightButton(const QStyleOptionViewItem& option, const QModelIndex& index,
                         const QPoint& at) const;
    void paintLabels(QPainter* painter, const QStyleOptionViewItem& option,
                     const SXItemRowGeometry& geometry, const QModelIndex& index) const;
    static void paintDisc(QPainter* painter, const QRect& button, const QColor& colour);
    static void paintPie(QPainter* painter, const QRect& button, double fraction);

    const SXContainerStore& m_store;
    mutable QHash<QString, QIcon> m_icons;
    int m_hoveredRow = -1;
    bool m_draggingRows = false;
};
