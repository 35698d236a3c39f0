#include "clientfile/frmTicks.h"

#include <QSettings>
#include <array>
#include <iterator>

#include "base/day.h"
#include "clientfile/front.h"
#include "screenkit/usersettings.h"

namespace clientfile {

namespace {

struct ChoiceWords {
    Choice choice;
    const char* name; ///< in the user's settings
    const char* caption;
    bool atFirst;
};

constexpr std::array<ChoiceWords, 8> choiceWords{{
    {Choice::notes, "notes", "Notes", true},
    {Choice::amortisation, "amortisation", "Amortisation", false},
    {Choice::monthly, "monthly", "by month", false},
    {Choice::premium, "premium", "Premium", true},
    {Choice::itemised, "itemised", "Itemised particulars", true},
    {Choice::commissions, "commissions", "Commissions", true},
    {Choice::charges, "charges", "Financial charges", true},
    {Choice::knownGains, "knownGains", "Known gains", true},
}};

const ChoiceWords& wordsOf(Choice choice) { return choiceWords.at(static_cast<std::size_t>(choice)); }

QString placeOf(const QString& name) { return "clientFile/parts/" + name; }
QString placeOf(const Part& part, Choice choice) {
    return QString("clientFile/choices/%1.%2").arg(part.name, wordsOf(choice).name);
}

QDate dateOf(double day) {
    const base::CalendarDate date = base::calendarDate(day).value_or(base::CalendarDate{});
    return {date.year, date.month, date.day};
}

} // namespace

bool Ticks::has(const QString& name) const { return screenkit::userSettings().value(placeOf(name), true).toBool(); }
void Ticks::set(const QString& name, bool on) { screenkit::userSettings().setValue(placeOf(name), on); }

bool Ticks::has(const Part& part, Choice choice) const {
    return screenkit::userSettings().value(placeOf(part, choice), wordsOf(choice).atFirst).toBool();
}
void Ticks::set(const Part& part, Choice choice, bool on) {
    screenkit::userSettings().setValue(placeOf(part, choice), on);
}

Choices Ticks::of(const Part& part) const {
    Choices ticked;
    for (const Choice choice : part.choices)
        if (has(part, choice)) ticked.insert(choice);
    return ticked;
}

QString nameOf(Choice choice) { return wordsOf(choice).name; }
QString captionOf(Choice choice) { return wordsOf(choice).caption; }

reports::DocumentPlan planOf(const std::shared_ptr<const Source>& source, const Ticks& ticks) {
    using reports::PrintSection;
    const datastore::Paths& paths = source->paths;
    reports::DocumentPlan plan{.definitions = paths.programFolder,
                               .printDatabase = paths.PrintDbPath,
                               .date = dateOf(source->today),
                               .title = "Client file",
                               .client = QString::fromStdString(source->record.client.Name).simplified(),
                               .fileClient = fileClientOf(source->record),
                               .fileTitle = fileTitleOf(source->today),
                               .chapters = {},
                               .hasContents = ticks.has(Ticks::contents)};
    if (ticks.has(Ticks::cover))
        plan.chapters.push_back({{}, [source](const PrintSection& print) {
                                     print(feedCover(source->paths.PrintDbPath, source->record, source->today));
                                 }});
    std::vector<std::string> remarks;
    std::vector<reports::Chapter> chapters;
    for (const Part& part : parts()) {
        if (!ticks.has(part.name) || !part.whyNot(*source).empty()) continue;
        if (std::string remark = remarkOn(part, *source); !remark.empty()) remarks.push_back(std::move(remark));
        chapters.push_back({part.title, [source, &part, choices = ticks.of(part)](const PrintSection& print) {
                                part.print(*source, choices, print);
                            }});
    }
    if (!remarks.empty())
        plan.chapters.push_back({"Results That Differ From the Record", [source, remarks](const PrintSection& print) {
                                     print(feedRemarks(source->paths.PrintDbPath, source->record.client.Name, remarks));
                                 }});
    std::move(chapters.begin(), chapters.end(), std::back_inserter(plan.chapters));
    return plan;
}

QString fileClientOf(const assessment::Assessment& record) {
    const QString surname = QString::fromStdString(record.details.CLName).trimmed();
    return surname.isEmpty() ? QString::fromStdString(record.client.Name).simplified() : surname;
}

QString fileTitleOf(double today) { return "client file " + dateOf(today).toString(Qt::ISODate); }

} // namespace clientfile
