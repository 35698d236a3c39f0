#pragma once

#include <QDate>
#include <deque>

#include "screenkit/realdesk.h"

namespace tour {

/// The program's own desk with its real boxes. It answers them by mouse as the tour requires and prints what was asked.
/// An unexpected box or file dialog is declined, and the tour ends with it as the reason.
class Desk : public screenkit::RealDesk {
public:
    /// The next box must have this title and gets this answer; pictureName: save a picture of it.
    void expect(const QString& title, screenkit::Answer answer, const QString& pictureName = {});
    /// The name to enter in the next file dialog.
    void expectFile(const QString& name) { m_files.push_back(name); }

    /// Ends the tour if something unexpected was asked.
    void checkQuiet() const;
    /// Also ends it if something expected was not asked.
    void checkDone() const;

    screenkit::Answer box(screenkit::BoxStyle style, const QString& text, const QString& title,
                          screenkit::Buttons buttons, std::optional<screenkit::Answer> defaultAnswer) override;
    std::optional<QString> fileToSave(const QString& title, const QString& suggested,
                                      const QStringList& filters) override;
    std::optional<QString> fileToOpen(const QString& title, const QString& folder, const QStringList& filters) override;
    /// Always the same day, so that ages and all figures that depend on them are the same in every tour.
    QDate today() override { return {2026, 6, 15}; }

private:
    struct Expected {
        QString title;
        screenkit::Answer answer;
        QString pictureName;
    };

    void press(const Expected& expected);
    std::optional<QString> nextFile(const QString& asked);

    std::deque<Expected> m_boxes;
    std::deque<QString> m_files;
    QString m_trouble;
};

} // namespace tour
