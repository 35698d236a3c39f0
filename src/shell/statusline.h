#pragma once

#include <QObject>

#include "assessment/assessment.h"

class QLabel;
class QMainWindow;

namespace shell {

/// What the main window always shows of the client: the name in the status bar, the name with an asterisk for unsaved
/// changes in the caption, the time of the last save, and for a screen reader the calculated results.
class StatusLine : public QObject {
    Q_OBJECT
public:
    StatusLine(QMainWindow* window, const assessment::Assessment& record);

    /// Shows the display name, built from title, initials and surname.
    void showClientName();
    void showSaved();
    /// Clears everything about the last client, when another client or none is loaded.
    void clear();
    /// Has a screen reader say this once. It stays readable in the status bar.
    void announce(const QString& said);

signals:
    void announced(const QString& said);

private:
    QLabel* addPanel(const char* name, bool atTheEnd);
    void showCaption();

    QMainWindow* m_window;
    const assessment::Assessment& m_record;
    QLabel *m_name, *m_said, *m_saved;
    QString m_captionName; ///< the name shown in the caption
    bool m_captionChanged = false;
};

} // namespace shell
