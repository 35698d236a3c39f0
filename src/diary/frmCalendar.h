#pragma once

#include <filesystem>

#include "datastore/clientlist.h"
#include "diary/entries.h"
#include "screenkit/screen.h"

namespace screenkit {
class ComboField;
}

namespace diary {

class MonthView;

/// The adviser's diary: a calendar of one to three months, the entries of the current day, and a form to add, edit,
/// move and delete them. Every change replaces the whole day in Diary.mdb. An entry that was cut exists only in the
/// form until it is put on its new day.
class frmCalendar : public screenkit::Screen {
    Q_OBJECT
public:
    /// Throws store::Error if the diary's file can't be read; the screen then does not open.
    explicit frmCalendar(screenkit::Workplace& workplace);

protected:
    void filled() override;
    void settled(screenkit::Field* field) override;

private:
    /// An entry taken from the list into the form.
    struct Taken {
        Entry entry;
        double day = 0;            ///< its day
        std::vector<Entry> others; ///< the entries that stay there, with `place` for this one
        std::size_t place = 0;
        bool isCut = false; ///< the day has been saved without it
    };

    QWidget* buildCalendar();
    QWidget* buildEntries();
    QWidget* buildForm();
    void showCaptions();

    void goTo(double day);
    void DateChanged(double day);
    void showEntries(std::vector<Entry> entries);
    void showMarks();
    std::optional<std::size_t> selected() const;
    void enableButtons();

    void take(bool cut);
    void add();
    void update(const Entry& entry);
    void remove();
    void clearForm();
    std::optional<Entry> formEntry();
    /// Shows a message and moves the focus; nothing to return.
    std::optional<Entry> refuse(const QString& text, screenkit::Field* focus);
    std::string formName() const;
    void useName(int source);
    void watch(screenkit::ComboField* combo);
    void setUpType(int which);
    void readNames();

    const std::filesystem::path& m_file;
    double m_day;       ///< the current day, whose entries are listed
    double m_typedDay;  ///< in `txtDateSelected`
    double m_pickedDay; ///< in `DTPicker1`
    std::vector<Entry> m_entries;
    std::optional<Taken> m_taken;
    std::array<UserType, 3> m_types;
    std::vector<datastore::ClientLine> m_clients;
    std::optional<std::filesystem::file_time_type> m_namesRead;
    std::filesystem::path m_namesFrom;

    int m_time = -1, m_client = -1, m_source = -1, m_type = 0, m_firstDay = 0, m_months = 0;
    std::string m_typedName, m_details;

    MonthView* m_calendar = nullptr;
    screenkit::Grid* m_list = nullptr;
    screenkit::DateField *m_dateField = nullptr, *m_picker = nullptr;
    screenkit::ComboField *m_times = nullptr, *m_names = nullptr;
    screenkit::TextField* m_nameField = nullptr;
    screenkit::MemoField* m_detailField = nullptr;
    screenkit::OptionGroup *m_sources = nullptr, *m_typeOptions = nullptr;
    QPushButton *m_add = nullptr, *m_edit = nullptr, *m_cut = nullptr, *m_delete = nullptr, *m_save = nullptr;
    screenkit::ComboField* m_leftCombo = nullptr; ///< its check is due
};

} // namespace diary
