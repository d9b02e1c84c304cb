#pragma once

#include <QLabel>

// The one line under the list that sums up the workspace ("3 files, 0.3 hours, ...").
class SXHelpView final : public QLabel {
    Q_OBJECT
public:
    explicit SXHelpView(QWidget* parent = nullptr);

    QString tipsStr() const { return text(); }
    void setTipsStr(const QString& text);
};
