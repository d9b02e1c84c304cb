#pragma once

#include <QObject>

class QAbstractItemView;
class QWidget;
class SXItemStateView;
class SXWorkspacePreview;

// Connects a window's list and state strip to the preview gestures of its workspace: a
// double-click plays a row, Space plays or stops the selected row, Shift+Space pauses and
// resumes, the strip's slider seeks and its pause button pauses, and the strip follows the
// preview's progress. It decides nothing; the workspace does.
class SXPreviewWiring final : public QObject {
    Q_OBJECT
public:
    SXPreviewWiring(QWidget& window, QAbstractItemView& list, SXItemStateView& strip,
                    SXWorkspacePreview& preview);
};
