#pragma once

#include "clientfile/frmTicks.h"
#include "screenkit/screen.h"

namespace clientfile {

/// The client file as one document: which parts, the adviser's own words, and the preview, PDF or ODT made of them.
class frmClientFile : public screenkit::Screen {
    Q_OBJECT
public:
    explicit frmClientFile(screenkit::Workplace& workplace);

    void clientReplaced() override;

protected:
    void filled() override;
    void edited() override;

private:
    /// A part with its ticks on the screen.
    struct Line {
        const Part* part;
        screenkit::CheckField* tick;
        std::vector<screenkit::CheckField*> choices;
        QLabel* why; ///< it can't be printed; in place of the choices
        bool isPrintable = false;
    };

    screenkit::CheckField* tickOf(const QString& name, const QString& caption, const QString& setting);
    screenkit::Item lineOf(const Part& part);
    /// The lines of the parts from `first` to before `behind`, their names in one column.
    QLayout* linesOf(std::size_t first, std::size_t behind);
    screenkit::Item frontPage();
    screenkit::Item calculationsPage();
    screenkit::Item taxPage();
    screenkit::Item wordsPage();
    QLayout* buttons();

    /// What is printed now, with the figures that open screens hold.
    std::shared_ptr<Source> currentSource();
    void show(Line& line);
    void tickAll(bool on);
    using Then = std::function<void(const reports::Report&, const store::Progress&)>;
    /// Makes the document, and what is made of it. Empty if the user cancelled or was told that there is nothing to
    /// print.
    std::shared_ptr<const reports::Report> make(const Then& then = {});
    void preview();
    void save(reports::Format format);

    Ticks m_ticks;
    std::vector<Line> m_lines;
    QString m_password; ///< for this document only; never stored
    screenkit::TextField* m_passwordField = nullptr;
    QLabel *m_key = nullptr, *m_remarks = nullptr, *m_saved = nullptr;
};

} // namespace clientfile
