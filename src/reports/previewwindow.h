#pragma once

#include <QMainWindow>
#include <memory>

#include "reports/export.h"

class QLabel;
class QSpinBox;
class QToolButton;

namespace screenkit {
class Desk;
}

namespace reports {

class PageView;
class PrinterSession;

/// A report on the screen, in a window that stays open when the screen that ran it is closed. It shows, prints and
/// exports only the report that it holds.
class PreviewWindow : public QMainWindow {
    Q_OBJECT

public:
    PreviewWindow(std::shared_ptr<const Report> report, screenkit::Desk& desk, PrinterSession& printing,
                  std::function<void()> help);

    const Report& report() const { return *m_report; }
    PageView& view() { return *m_view; }

    /// Asks for a file name, with this format preselected, and exports. False if cancelled or failed.
    bool exportReport(Format first = Format::pdf);
    /// Writes the export completely or not at all, and shows where; a failure shows a message. The name's ending
    /// decides the format.
    bool exportTo(const QString& fileName);

private:
    void addActions();
    QAction* addAction(const char* name, const QString& icon, const QString& text, const QList<QKeySequence>& keys,
                       std::function<void()> action);
    QToolButton* exportButton();
    QToolButton* zoomButton();
    void addPageField();
    void showPage(int page);
    void showScale(double scale);
    void zoomBy(double factor);
    bool agreesToNoPassword();

    std::shared_ptr<const Report> m_report;
    screenkit::Desk& m_desk;
    PrinterSession& m_printing;
    std::function<void()> m_help;
    PageView* m_view;
    QToolBar* m_bar;
    QLabel* m_savedLine;
    QSpinBox* m_pageField = nullptr;
    QToolButton* m_zoomButton = nullptr;
    QAction* m_first = nullptr;
    QAction* m_previous = nullptr;
    QAction* m_next = nullptr;
    QAction* m_last = nullptr;
    QAction* m_pageWidth = nullptr;
    QAction* m_wholePage = nullptr;
};

} // namespace reports
