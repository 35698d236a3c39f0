#include "reports/resultscreen.h"

#include <limits>

#include "reports/report.h"

namespace reports {

using namespace screenkit;

NumberField* ResultScreen::answer(const QString& name, Bound<double> place, const NumberKind& kind) {
    return keptAnswer(result(name, std::move(place), kind));
}

NumberField* ResultScreen::keptAnswer(NumberField* field) {
    showsCalculated(field);
    m_answers.push_back(field);
    return field;
}

void ResultScreen::showAnswers(bool areFinite, std::set<QWidget*> leftAsTheyWere) {
    for (NumberField* field : m_answers)
        areFinite ? field->fill() : field->present(std::numeric_limits<double>::quiet_NaN()); // shows as an error
    calculated(0, std::move(leftAsTheyWere));
}

QLayout* ResultScreen::buttonLine(const std::vector<QPushButton*>& own, const ResultNames& names) {
    auto* work = button(names.calculate, "&Calculate", [this] {
        calculate();
        sayAnswers();
    });
    m_ok = okButton(names.ok);
    std::vector<Item> line{work};
    line.insert(line.end(), own.begin(), own.end());
    line.insert(line.end(), {button("cmdPrint", "&Print", [this] { openPrint(); }), spring(), m_ok});
    defaultButton(work);
    return row(line);
}

QPushButton* ResultScreen::resultButton(const QString& name, const QString& caption, std::function<void()> action) {
    return button(name, caption, [this, action = std::move(action)] {
        bringUpToDate();
        action();
    });
}

void ResultScreen::prints(std::initializer_list<Item> choices, const std::vector<Field*>& fields,
                          const PrintNames& names) {
    for (Field* field : fields)
        untrackedField(field);
    m_printPanel = printPanel(
        choices, [this](Destination to) { print(to); }, names);
    m_hasChoices = choices.size() > 0;
}

void ResultScreen::sayAnswers() {
    std::vector<NumberField*> seen;
    for (NumberField* field : m_answers)
        if (!field->isHidden()) seen.push_back(field);
    announce(seen);
}

void ResultScreen::openPrint() {
    calculate();
    if (!m_hasChoices && !feed()) return m_ok->setFocus(Qt::OtherFocusReason);
    m_printPanel->open();
}

void ResultScreen::print(Destination destination) {
    bringUpToDate();
    const auto printout = feed();
    if (!printout) return focusLater(m_ok);
    m_work.reports.run(QString::fromStdString(printout->definition), QString::fromStdString(printout->title),
                       destination);
}

} // namespace reports
