#include "reports/output/sheetplan.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "reports/face.h"

namespace reports {
namespace {

constexpr std::size_t shortTable = 12; // rows that may share a sheet with other parts

bool hasOwnSheet(const Block& block) {
    return block.kind == Block::Kind::table && !block.table.heads.empty() && block.table.rows.size() > shortTable;
}

class Planner {
public:
    std::vector<SheetPlan> planned(const Content& content) {
        m_plans.push_back({.name = named("Report"), .blocks = {}});
        add(content.blocks, content.title);
        for (SheetPlan& plan : m_plans)
            plan.headed = onlyHeaded(plan);
        return std::move(m_plans);
    }

private:
    void add(const std::vector<Block>& blocks, const QString& title) {
        for (const Block& block : blocks) {
            for (const std::vector<Block>& column : block.columns)
                add(column, title);
            if (block.kind == Block::Kind::columns) continue;
            if (hasOwnSheet(block))
                addSheet(block, title);
            else
                m_plans.front().blocks.push_back(&block);
        }
    }

    void addSheet(const Block& block, const QString& title) {
        std::vector<const Block*>& first = m_plans.front().blocks;
        SheetPlan plan{.name = {}, .blocks = {}};
        const bool headed = !first.empty() && first.back()->kind == Block::Kind::heading;
        if (headed) {
            plan.blocks.push_back(first.back());
            first.pop_back();
        }
        plan.name = named(headed ? textOf(plan.blocks.front()->runs) : title);
        plan.blocks.push_back(&block);
        m_plans.push_back(std::move(plan));
    }

    QString named(QString wanted) {
        static const QRegularExpression refused(R"([\[\]:*?/\\'\n\t])");
        wanted = wanted.replace(refused, " ").simplified().left(26);
        if (wanted.isEmpty()) wanted = "Table";
        QString name = wanted;
        for (int number = 2; m_names.contains(name, Qt::CaseInsensitive); ++number)
            name = wanted + ' ' + QString::number(number);
        m_names << name;
        return name;
    }

    static const Table* onlyHeaded(const SheetPlan& plan) {
        const Table* found = nullptr;
        for (const Block* block : plan.blocks) {
            if (block->table.heads.empty()) continue;
            if (found) return nullptr;
            found = &block->table;
        }
        return found;
    }

    std::vector<SheetPlan> m_plans;
    QStringList m_names;
};

} // namespace

std::vector<SheetPlan> sheetsOf(const Content& content) { return Planner().planned(content); }

QStringList cellTexts(const QString& text) {
    constexpr qsizetype mostLetters = 1200; // about 27 lines, the most that a row can be high
    constexpr qsizetype mostLines = 16;
    QStringList texts;
    QString rest = text;
    while (true) {
        qsizetype end = std::min(rest.size(), mostLetters);
        qsizetype lineEnd = -1;
        for (qsizetype line = 0; line < mostLines; ++line) {
            const qsizetype next = rest.indexOf('\n', lineEnd + 1);
            if (next < 0 || next > end) break;
            lineEnd = next;
            if (line + 1 == mostLines) end = lineEnd;
        }
        if (end >= rest.size()) break;
        if (rest[end] != '\n') {
            const qsizetype blank = std::max(rest.lastIndexOf(' ', end), rest.lastIndexOf('\n', end));
            if (blank > mostLetters / 2) end = blank;
        }
        const bool atBlank = rest[end] == ' ' || rest[end] == '\n';
        texts << rest.left(end);
        rest = rest.mid(end + (atBlank ? 1 : 0));
    }
    return texts << rest;
}

double digitsWide(const QString& text) {
    // The workbook's own font is not available here; ours has about the same widths in relation to its digits.
    static const double digit = Faces::all().body.metrics.horizontalAdvance("0");
    double widest = 0;
    for (const QString& line : text.split('\n'))
        widest = std::max(widest, Faces::all().body.metrics.horizontalAdvance(line));
    return widest / digit;
}

int linesIn(const QString& text, double digits) {
    int lines = 0;
    for (const QString& line : text.split('\n')) // adds a little, since a line breaks before the word that does not fit
        lines += std::max(1, static_cast<int>(std::ceil(digitsWide(line) * 1.06 / std::max(digits, 1.0))));
    return lines;
}

QByteArray spreadsheetFormat(const QString& mask, const QString& printed) {
    const auto isDigit = [](QChar letter) { return letter == '#' || letter == '0'; };
    const auto first = std::find_if(mask.begin(), mask.end(), isDigit);
    const auto last = std::find_if(mask.rbegin(), mask.rend(), isDigit).base();
    if (first == mask.end()) return "General";
    const QString before(mask.begin(), first - mask.begin());
    const QString figure(first, last - first);
    QString after(last, mask.end() - last);
    const QString whole = figure.section('.', 0, 0);
    QString format = whole.contains(' ') ? (whole.endsWith('0') ? "#,##0" : "#,###") : whole;
    static const QRegularExpression printedPlaces(R"(\d\.(\d+))"); // "0.###" prints 12 as "12", never as "12."
    const qsizetype places = printedPlaces.match(printed).captured(1).size();
    if (figure.contains('.') && places > 0) format += '.' + QString(places, '0');
    if (after.startsWith('%')) format += '%', after.remove(0, 1); // only directly after the digits
    const auto literal = [](const QString& text) {
        return text.isEmpty() ? text : '"' + QString(text).remove('"') + '"';
    };
    return (literal(before) + format + literal(after)).toUtf8();
}

} // namespace reports
