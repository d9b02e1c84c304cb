#pragma once

#include <QWidget>

// The count of items of one container, drawn as a small pill beside its tab's label.
class SXCountBadge final : public QWidget {
    Q_OBJECT
public:
    explicit SXCountBadge(QWidget* parent = nullptr);

    void setCount(const QString& label, int count);
    int count() const { return m_count; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int m_count = 0;
};
