#pragma once

#include <optional>

#include "diary/followup.h"
#include "screenkit/screen.h"
#include "store/openfiles.h"

namespace diary {

/// A screen that searches the client file for a list, shows it in `DBGrid1` and prints it: the search shown, with its
/// own heading, whatever was chosen since.
class FollowUpScreen : public screenkit::Screen {
    Q_OBJECT
protected:
    FollowUpScreen(screenkit::Workplace& workplace, const QString& name, const QString& caption);

    /// Options that each have a name of their own: `Option4`, `Option5`, ... from `first` on.
    screenkit::OptionGroup* numbered(int first, const QStringList& captions, screenkit::Bound<int> place,
                                     std::function<void(int)> picked = {});
    /// The choices at the left, the list at the right, and the buttons under both.
    void layOut(QLayout* choices);

    /// Searches the file for what is chosen; nothing after a message to the user.
    virtual std::optional<std::vector<FoundClient>> search() = 0;
    /// The columns of the list shown, and a cell of a line.
    virtual std::vector<screenkit::GridColumn> heads() const = 0;
    virtual screenkit::GridCell cell(const FoundClient& line, std::size_t column) const = 0;
    virtual datastore::Printout feed(const std::vector<FoundClient>& found) const = 0;

    void closing() override { m_bound.reset(); }

private:
    void cmdSearch();
    void cmdPrint();

    std::vector<FoundClient> m_found;
    std::optional<store::OpenFile> m_bound; ///< while a list is shown, its file must not be replaced
    screenkit::Grid* m_list = nullptr;
    QLineEdit* m_count = nullptr;
    screenkit::PrintPanel* m_printPanel = nullptr;
};

/// A date in a list; nothing where there is none.
screenkit::GridCell dateCell(double day);
inline screenkit::GridCell textCell(const std::string& text) { return QString::fromStdString(text); }

} // namespace diary
