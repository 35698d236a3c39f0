#pragma once

#include <QPointer>

#include "screenkit/desk.h"

class QPrinter;

namespace screenkit {

/// The program's own desk: real message boxes, the system's file and print dialogs, the system's clock. Boxes and
/// dialogs belong to the window that asked, which is in front again when they close.
class RealDesk : public Desk {
public:
    explicit RealDesk(QWidget* window = nullptr) : m_window(window) {}
    void setWindow(QWidget* window) { m_window = window; }

    Answer box(BoxStyle style, const QString& text, const QString& title, Buttons buttons,
               std::optional<Answer> defaultAnswer) override;
    std::optional<QString> fileToOpen(const QString& title, const QString& folder, const QStringList& filters) override;
    std::optional<QString> fileToSave(const QString& title, const QString& suggested,
                                      const QStringList& filters) override;
    std::optional<QString> input(const QString& text, const QString& title, const QString& initial) override;
    bool choosePrinter(QPrinter& printer) override;
    bool hasPrinter() override;
    void bell() override;
    QDate today() override;
    void openOnDesktop(const QString& address) override;
    bool startProgram(const QStringList& candidates) override;

private:
    QWidget* m_window; ///< used while none of our windows is active
    QPointer<QWidget> m_lastAsking;
};

} // namespace screenkit
