#pragma once

#include <QDate>
#include <deque>

#include "screenkit/realdesk.h"

namespace tour {

/// The program's own desk with its real boxes, which answers them by mouse as the case needs and says aloud what was
/// asked. A box or file chooser that is not expected next is declined and kept as trouble, for the tour to end on.
class Desk : public screenkit::RealDesk {
public:
    /// The next box has this title and is answered so; pictureName: leave a picture of it.
    void expect(const QString& title, screenkit::Answer answer, const QString& pictureName = {});
    /// The next file to save under.
    void expectFile(const QString& name) { m_files.push_back(name); }

    /// Ends the tour if something came that was not expected.
    void checkQuiet() const;
    /// Also if something that was expected has not come.
    void checkDone() const;

    screenkit::Answer box(screenkit::BoxStyle style, const QString& text, const QString& title,
                          screenkit::Buttons buttons, std::optional<screenkit::Answer> defaultAnswer) override;
    std::optional<QString> fileToSave(const QString& title, const QString& suggested,
                                      const QStringList& filters) override;
    /// The same day each time: ages, and all that follows from them, are the same whenever the tour is taken.
    QDate today() override { return {2026, 6, 15}; }

private:
    struct Expected {
        QString title;
        screenkit::Answer answer;
        QString pictureName;
    };

    void press(const Expected& expected);

    std::deque<Expected> m_boxes;
    std::deque<QString> m_files;
    QString m_trouble;
};

} // namespace tour
