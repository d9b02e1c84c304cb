#pragma once

#include "workspace/SXStateStripModel.h"

#include <QWidget>

class QLabel;
class QProgressBar;
class QSlider;
class QToolButton;

// The strip in the toolbar that shows what the window is doing (SXStateStripModel decides):
// the brand mark when idle, the run's total progress, or the previewed item with its times.
class SXItemStateView final : public QWidget {
    Q_OBJECT
public:
    explicit SXItemStateView(QWidget* parent = nullptr);

    void updateForAppState(int state, const SXMusicInfoPtr& item);
    void updateConverterProgress(double percent);
    void musicPlayingProgress(const SXMusicInfoPtr& item, double seconds);
    const SXStateStripModel& model() const { return m_model; }
    // The pause button's look: "resume" while the preview is paused.
    void setPaused(bool paused);

Q_SIGNALS:
    // The user moved the play-position slider (0..100).
    void sliderMoved(double percent);
    // The user asked to pause or resume the preview.
    void pauseClicked();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showLook();

    SXStateStripModel m_model;
    QLabel* _tfName = nullptr;
    QLabel* _tfPlayTime = nullptr;
    QLabel* _tfMusicTime = nullptr;
    QProgressBar* _priProgress = nullptr;
    QSlider* _slider = nullptr;
    QToolButton* m_pauseButton = nullptr;
};
