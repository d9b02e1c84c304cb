#include "gui/panels/SXHelpView.h"

SXHelpView::SXHelpView(QWidget* parent)
    : QLabel(parent) {
    setObjectName(QStringLiteral("helpBar"));
    setAccessibleName(tr("Summary"));
    setForegroundRole(QPalette::PlaceholderText);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setFocusPolicy(Qt::NoFocus);
}

void SXHelpView::setTipsStr(const QString& text) {
    setText(text);
    setAccessibleDescription(text);
}
