#include "diary/frmCalendar.h"

#include <QLabel>
#include <QRadioButton>
#include <QTimer>

#include "base/day.h"
#include "base/text.h"
#include "datastore/paths.h"
#include "diary/frmMonthView.h"
#include "screenkit/combofield.h"
#include "screenkit/trouble.h"
#include "store/error.h"

namespace diary {

using namespace screenkit;

namespace {

constexpr const char* selectTime = "Select Time";
constexpr const char* selectName = "Select Name from Drop Down List";
constexpr const char* addCaption = "Add Diar&y Entry";
constexpr const char* updateCaption = "&Update Diary Entry";
constexpr int fixedTypes = 3;

QString words(const std::string& text) { return QString::fromStdString(text); }
QString caption(const std::string& text) { return words(text).replace("&", "&&"); }

std::string typeAt(int option, const std::array<UserType, 3>& own) {
    constexpr const char* fixed[] = {appointment, birthday, toDo};
    return option < fixedTypes ? fixed[option] : own[static_cast<std::size_t>(option - fixedTypes)].caption;
}

const DateKind requiredDate = DateKind().required("Error").worded(
    "The date entered is in the wrong format\nPlease use the dd/mm/yyyy format.", "Error");

} // namespace

frmCalendar::frmCalendar(Workplace& workplace)
    : Screen(workplace, "frmCalendar", "Diary", untracked()), m_file(workplace.paths.DiaryDbPath), m_day(today()),
      m_typedDay(m_day), m_pickedDay(m_day), m_types(LoadDiaryTypes(m_file)) {
    body(row({Item(column({Item(buildCalendar()), spring()})),
              Item(column({Item(buildEntries(), 1), Item(buildForm())}), 1)}));
    defaultButton(m_add);
    m_calendar->kindsOf = [this](Month month) {
        std::vector<DayKind> kinds = dayKinds(month.year, month.month);
        guarded(m_work.desk, tr("read the diary"), [&] { kinds = ColorAppDates(m_file, month); });
        return kinds;
    };
    m_calendar->setDay(m_day);
    DateChanged(m_day);
    showMarks();
    clearForm();
}

QWidget* frmCalendar::buildCalendar() {
    m_calendar = new MonthView("MonthView1");
    m_calendar->dayPicked = [this](double day) { guarded(m_work.desk, tr("read the diary"), [&] { goTo(day); }); };
    auto* explained = note(legend());
    auto* firstDay = new ComboField("FirstDayCmb", tr("First day of the week"), 14,
                                    {[this] { return m_firstDay; },
                                     [this](int day) {
                                         m_firstDay = day;
                                         m_calendar->setFirstDay(day);
                                     }});
    firstDay->setRows(
        {"1 - Sunday", "2 - Monday", "3 - Tuesday", "4 - Wednesday", "5 - Thursday", "6 - Friday", "7 - Saturday"});
    const auto setMonths = [this](int which) {
        const int before = m_calendar->sizeHint().width();
        m_calendar->setMonths(which + 1);
        makeRoom(this, size() + QSize(std::max(0, m_calendar->sizeHint().width() - before), 0));
    };
    auto* months = options("Option2", {"1", "2", "3"}, m_months, setMonths, Qt::Horizontal);
    for (int i = 0; i < 3; ++i)
        months->option(i)->setAccessibleName(i == 0 ? tr("1 month") : tr("%1 months").arg(i + 1));
    m_dateField = date("txtDateSelected", m_typedDay, requiredDate);
    m_picker = date("DTPicker1", m_pickedDay, requiredDate);
    for (Field* field : std::initializer_list<Field*>{months, m_dateField, m_picker})
        untrackedField(field);
    const auto move = [this](const QString& name, const QString& text, std::function<double()> to) {
        return button(name, text, [this, to = std::move(to)] { goTo(to()); });
    };
    return group("fraCalendar", "Calendar",
                 column({Item(m_calendar), Item(explained),
                         row({move("cmdPrevDay", "Previous day ", [this] { return m_day - 1; }),
                              move("cmdGotoToDay", "&Today", [this] { return today(); }),
                              move("cmdNextDay", "Next day ", [this] { return m_day + 1; })}),
                         form({{"&Date selected", m_dateField}}),
                         row({labelled("&Go to", m_picker),
                              move("cmdGoToDate", "Goto Date Selected", [this] { return m_pickedDay; }), spring()}),
                         form({{"First day of the week", firstDay}}),
                         group("fraMonths", "Number of Months to display", Item(months))}));
}

QWidget* frmCalendar::buildEntries() {
    m_list = table(
        "ListView1", tr("Entries of the day"), Grid::Picking::one, [this] { enableButtons(); }, {},
        [this](int head) {
            // The first head orders by the number of the time, the order in which the entries are kept.
            m_list->sortBy(head == 0 ? -1 : head, Qt::AscendingOrder);
            m_list->setSortedBy(head);
        });
    m_list->setVisibleLines(5);
    m_list->setEmptyText(tr("No entries on this day."));
    m_edit = button("cmdEditDD", "&Edit", [this] { take(false); });
    m_cut = button("cmdCutMove", "&Cut && Move entry to Another Date", [this] { take(true); });
    m_delete = button("cmdDelDD", "De&lete", [this] { remove(); });
    m_save = button("cmdSaveDD", "&Save", [this] { SaveDiaryAppoints(m_file, m_day, m_entries); });
    return group("fraEntries", "Entries of the day",
                 column({Item(m_list, 1), row({m_edit, m_cut, m_delete, m_save, spring(), okButton()})}));
}

QWidget* frmCalendar::buildForm() {
    m_times = new ComboField("cboSelectTime", tr("Time"), 12, m_time,
                             {"Please Select a valid time frm the drop down list!", "Marlowbeck"});
    QStringList rows;
    for (const std::string& time : times())
        rows << words(time);
    m_times->setRows(rows);
    m_names = new ComboField("cboSelectDBName", tr("Name from the client file"), 24, m_client,
                             {"Name Not Selected", "Marlowbeck"});
    m_nameField = text("txtDiaryName", m_typedName, 80, 27);
    m_detailField = memo("txtAppointmentDetail", Bound<QString>(m_details), 4000);
    m_sources = options("optUseNameApp", {"Use This name for Appointment", "Use This name for Appointment"}, m_source,
                        {}, std::nullopt);
    m_typeOptions =
        options("optTypeDiaryEntry", {"Appointment", "Birthday", "To Do", "1", "2", "3"}, m_type, {}, std::nullopt);
    for (Field* field : std::initializer_list<Field*>{m_nameField, m_detailField, m_sources, m_typeOptions})
        untrackedField(field);
    watch(m_times);
    watch(m_names);
    m_times->edited = [this] { enableButtons(); };
    connect(m_times, &QComboBox::editTextChanged, this, [this] { enableButtons(); });
    m_names->edited = [this] { useName(0); };
    std::vector<Item> own;
    for (int i = 0; i < fixedTypes; ++i) {
        auto* change = button("Label1(" + QString::number(6 + i) + ")", "...", [this, i] { setUpType(i + 1); });
        change->setAccessibleName(tr("Set up entry type %1").arg(i + 1));
        change->setToolTip(tr("Set up this type of entry"));
        own.insert(own.end(), {Item(m_typeOptions->option(fixedTypes + i)), Item(change)});
    }
    own.push_back(spring());
    showCaptions();
    m_add = button("cmdAddUpdateDD", addCaption, [this] {
        m_leftCombo = nullptr; // its own check comes first
        add();
    });
    return group("fraEntry", "Diary entry",
                 column({form({{"T&ime", m_times},
                               {"Client &name", row({m_names, m_sources->option(0), spring()})},
                               {"Other na&me", row({m_nameField, m_sources->option(1), spring()})},
                               {"Details", m_detailField}}),
                         row({m_typeOptions->option(0), m_typeOptions->option(1), m_typeOptions->option(2), spring()}),
                         row(own), row({m_add, spring()})}));
}

void frmCalendar::showCaptions() {
    for (int i = 0; i < fixedTypes; ++i) {
        auto* option = m_typeOptions->option(fixedTypes + i);
        const UserType& type = m_types[static_cast<std::size_t>(i)];
        option->setText(caption(type.caption));
        option->setAccessibleName(type.isInUse ? words(type.caption) : tr("Type of your own %1").arg(i + 1));
        option->setEnabled(type.isInUse);
    }
}

// ---- the day

void frmCalendar::settled(Field* field) {
    if (field == m_dateField) goTo(m_typedDay);
    if (field == m_nameField && !base::trim(m_typedName).empty() && m_source != 1) useName(1);
    if (field == m_nameField && base::trim(m_typedName).empty()) useName(1);
}

void frmCalendar::goTo(double day) {
    if (day != m_day && base::isShownOnScreen(day) && base::calendarDate(day)) DateChanged(day);
    m_typedDay = m_day;
    m_dateField->fill();
    if (m_calendar->day() != m_day) m_calendar->setDay(m_day);
}

void frmCalendar::DateChanged(double day) {
    std::vector<Entry> entries = readDay(m_file, day); // before anything is changed: it may fail
    m_day = day;
    showEntries(std::move(entries));
}

void frmCalendar::showEntries(std::vector<Entry> entries) {
    sortByTime(entries);
    m_entries = std::move(entries);
    static constexpr Column shownColumns[] = {Column::time, Column::name, Column::details, Column::type};
    const auto cell = [this](std::size_t line, std::size_t column) -> GridCell {
        return words(m_entries[line].text(shownColumns[column])).simplified();
    };
    m_list->show({GridColumn::text("Time", 10), GridColumn::text("Name", 22), GridColumn::text("Appointment details"),
                  GridColumn::text("Type", 14)},
                 {m_entries.size(), cell});
    m_list->setSortedBy(0);
    enableButtons();
}

void frmCalendar::showMarks() { m_calendar->refresh(); }

std::optional<std::size_t> frmCalendar::selected() const {
    const auto picked = m_list->picked();
    return picked.empty() ? std::nullopt : std::optional(picked.front());
}

void frmCalendar::enableButtons() {
    if (m_add == nullptr) return;
    const bool isFree = !m_taken.has_value();
    for (QPushButton* push : {m_edit, m_cut, m_delete})
        push->setEnabled(isFree && selected());
    m_save->setEnabled(isFree);
    m_list->setEnabled(isFree || !m_taken->isCut);
    m_add->setText(isFree ? addCaption : updateCaption);
    m_add->setEnabled(m_times->currentText() != selectTime);
}

// ---- the form

void frmCalendar::clearForm() {
    m_taken.reset();
    m_source = -1;
    m_type = 0;
    m_typedName.clear();
    m_details.clear();
    m_times->present(selectTime);
    m_names->present(selectName);
    for (Field* field : std::initializer_list<Field*>{m_nameField, m_detailField, m_sources, m_typeOptions})
        field->fill();
    for (int source = 0; source < 2; ++source)
        m_sources->option(source)->setEnabled(false);
    enableButtons();
}

/// A name has been chosen or typed, or cleared: that source is used, or can't be.
void frmCalendar::useName(int source) {
    const bool isThere = source == 0 ? m_client >= 0 : !base::trim(m_typedName).empty();
    m_sources->option(source)->setEnabled(isThere);
    if (isThere)
        m_source = source;
    else if (m_source == source)
        m_source = -1;
    m_sources->fill();
}

std::string frmCalendar::formName() const {
    if (m_source == 1) return m_typedName;
    return m_source < 0 || m_client < 0 ? std::string() : m_clients[static_cast<std::size_t>(m_client)].Name;
}

std::optional<Entry> frmCalendar::refuse(const QString& text, Field* focus) {
    m_work.desk.tell(BoxStyle::warning, text, "Marlowbeck");
    focus->takeFocus();
    return {};
}

std::optional<Entry> frmCalendar::formEntry() {
    const QString time = m_times->currentText();
    const bool isStored = m_taken && m_time < 0 && time == words(m_taken->entry.text(Column::time)); // but not offered
    if (m_time < 0 && time.trimmed().isEmpty() && !isStored) return refuse("Please select valid time", m_times);
    if (m_time < 0 && m_times->isRefused())
        return refuse("Please Select a valid time frm the drop down list!", m_times);
    const bool hasTime = m_time >= 0 || isStored;
    const bool hasName = !base::trim(formName()).empty();
    Field* missing = !hasTime        ? static_cast<Field*>(m_times)
                     : m_source == 1 ? static_cast<Field*>(m_nameField)
                                     : m_names;
    if (!hasTime || !hasName)
        return refuse(m_source == 1 ? "A valid time must be selected and/or Name needs to be entered."
                                    : "A valid time must be selected and/or Database Name needs to be Selected.",
                      missing);
    const double client = m_source == 1 ? 0 : m_clients[static_cast<std::size_t>(m_client)].DCLNO;
    const std::string type = m_type < 0 ? std::string() : typeAt(m_type, m_types);
    Entry entry = makeEntry(m_day, static_cast<std::size_t>(std::max(m_time, 0)), formName(), client, m_details, type);
    if (m_time < 0)
        for (const Column column : {Column::time, Column::timeOrder})
            entry[column] = m_taken->entry[column];
    if (m_taken && m_type < 0) entry[Column::type] = m_taken->entry[Column::type];
    return entry;
}

void frmCalendar::add() {
    const auto entry = formEntry();
    if (!entry) return;
    if (m_taken) {
        update(*entry);
    } else {
        std::vector<Entry> entries = m_entries;
        entries.push_back(*entry);
        sortByTime(entries);
        SaveDiaryAppoints(m_file, m_day, entries);
        showEntries(std::move(entries));
    }
    clearForm();
    showMarks();
    m_times->takeFocus();
}

void frmCalendar::update(const Entry& entry) {
    if (m_day == m_taken->day) {
        std::vector<Entry> entries = m_taken->others;
        entries.insert(entries.begin() + static_cast<std::ptrdiff_t>(m_taken->place), entry);
        sortByTime(entries);
        SaveDiaryAppoints(m_file, m_day, entries);
        return showEntries(std::move(entries));
    }
    if (m_taken->isCut)
        SaveMovedDiaryAppoint(m_file, entry);
    else
        moveEntry(m_file, m_taken->day, m_taken->others, entry);
    m_taken.reset(); // it is on its new day, even if that can't be read now
    DateChanged(m_day);
}

void frmCalendar::take(bool cut) {
    const auto place = selected();
    if (!place) return;
    Taken taken{m_entries[*place], m_day, m_entries, *place, cut};
    taken.others.erase(taken.others.begin() + static_cast<std::ptrdiff_t>(*place));
    if (cut) SaveDiaryAppoints(m_file, m_day, taken.others);
    clearForm();
    m_taken = std::move(taken);
    if (cut) showEntries(m_taken->others);
    Entry& entry = m_taken->entry;

    const std::string time = entry.text(Column::time);
    const auto at = std::ranges::find(times(), time);
    m_time = at == times().end() ? -1 : static_cast<int>(at - times().begin());
    m_time < 0 ? m_times->present(words(time)) : m_times->fill();
    const auto client = std::ranges::find_if(m_clients, [&](const datastore::ClientLine& line) {
        return line.DCLNO == entry.number(Column::client) && line.Name == entry.text(Column::name);
    });
    if (client != m_clients.end()) {
        m_client = static_cast<int>(client - m_clients.begin());
        m_names->fill();
        useName(0);
    } else {
        m_typedName = entry.text(Column::name);
        m_nameField->fill();
        useName(1);
    }
    m_details = entry.text(Column::details);
    m_detailField->fill();
    m_type = -1; // a type that is not offered stays as stored
    for (int option = 0; option < 2 * fixedTypes; ++option)
        if (m_typeOptions->option(option)->isEnabled() && typeAt(option, m_types) == entry.text(Column::type)) {
            m_type = option;
            break;
        }
    m_typeOptions->fill();
    enableButtons();
    if (cut) showMarks();
    cut ? m_dateField->takeFocus() : m_detailField->takeFocus();
}

void frmCalendar::remove() {
    const auto place = selected();
    if (!place) return;
    std::vector<Entry> entries = m_entries;
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(*place));
    SaveDiaryAppoints(m_file, m_day, entries);
    showEntries(std::move(entries));
    showMarks();
}

/// Checks a list when the user has left it, after the event, since a box must not open inside a focus change.
void frmCalendar::watch(ComboField* combo) {
    combo->left = [this, combo] {
        m_leftCombo = combo;
        QTimer::singleShot(0, this, [this, combo] {
            if (m_leftCombo != combo || !isVisible() || combo->hasFocus()) return;
            m_leftCombo = nullptr;
            if (const auto why = combo->complaint()) {
                m_work.desk.tell(BoxStyle::critical, why->text, why->title);
                combo->takeFocus();
            }
        });
    };
}

// ---- names and types

void frmCalendar::filled() { readNames(); }

/// Reads the clients if their file has changed. One that can't be read leaves the diary usable without names.
void frmCalendar::readNames() {
    std::error_code ignored;
    const std::filesystem::path& path = m_work.paths.DataDbPath;
    const auto changed = std::filesystem::last_write_time(path, ignored);
    if (m_namesRead == changed && m_namesFrom == path) return;
    const double chosen = m_client < 0 ? 0 : m_clients[static_cast<std::size_t>(m_client)].DCLNO;
    const std::string name = m_client < 0 ? std::string() : m_clients[static_cast<std::size_t>(m_client)].Name;
    std::vector<datastore::ClientLine> clients;
    try {
        clients = datastore::readClientList(path);
        m_namesRead = changed;
        m_namesFrom = path;
    } catch (const store::Error&) {
        m_namesRead.reset();
        if (!m_clients.empty()) return; // the names read before
    }
    m_clients = std::move(clients);
    QStringList rows;
    rows.reserve(static_cast<qsizetype>(m_clients.size()));
    for (const datastore::ClientLine& line : m_clients)
        rows << words(line.Name);
    m_client = -1;
    for (std::size_t i = 0; chosen != 0 && i < m_clients.size(); ++i)
        if (m_clients[i].DCLNO == chosen && m_clients[i].Name == name) m_client = static_cast<int>(i);
    m_names->setRows(rows);
    if (chosen != 0 && m_client < 0) useName(0); // that client is gone
}

void frmCalendar::setUpType(int which) {
    UserType& type = m_types[static_cast<std::size_t>(which - 1)];
    const auto typed =
        m_work.desk.input("Please Enter Your User Defined Diary Entry.\nPlease limit your entry to ± 15 characters.",
                          "Setup of User Defined Diary Entries", words(type.caption));
    const std::string entered = base::trim(typed.value_or(QString()).toStdString());
    if (entered.empty() &&
        m_work.desk.box(BoxStyle::question,
                        "By clicking on the Cancel button or leaving the Input Field Blank\nYou have chosen to remove "
                        "all these User Defined Diary Entries from your Diary!\nDo you want to continue?",
                        "Setup of User Defined Diary Entries", Buttons::yesNo, Answer::no) != Answer::yes)
        return;
    SaveDiaryType(m_file, which, entered);
    m_types = LoadDiaryTypes(m_file);
    if (!m_types[static_cast<std::size_t>(which - 1)].isInUse && m_type == fixedTypes + which - 1) m_type = 0;
    showCaptions();
    m_typeOptions->fill();
}

} // namespace diary
