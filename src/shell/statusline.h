#pragma once

#include <QObject>

#include "assessment/assessment.h"

class QLabel;
class QMainWindow;

namespace shell {

/// What the main window tells of the client without being asked: the name in the status bar, name and an asterisk for
/// unsaved changes in the window's caption, the time of the last save, and to a screen reader what was worked out.
class StatusLine : public QObject {
    Q_OBJECT
public:
    StatusLine(QMainWindow* window, const assessment::Assessment& record);

    /// Shows the display name that title, initials and surname make up.
    void showClientName();
    void showSaved();
    /// Another client is coming, or none: nothing of the last one stays.
    void clear();
    /// Has a screen reader say this, once. It can be found again in the status bar.
    void announce(const QString& said);

signals:
    void announced(const QString& said);

private:
    QLabel* addPanel(const char* name, bool atTheEnd);
    void showCaption();

    QMainWindow* m_window;
    const assessment::Assessment& m_record;
    QLabel *m_name, *m_said, *m_saved;
    QString m_captionName; ///< what the caption shows
    bool m_captionChanged = false;
};

} // namespace shell
