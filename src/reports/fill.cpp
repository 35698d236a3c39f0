#include <QRegularExpression>
#include <algorithm>
#include <functional>

#include "base/numberformat.h"
#include "reports/content.h"
#include "reports/definition.h"
#include "reports/snapshot.h"

namespace reports {
namespace {

/// The table that a plain field name refers to, and its current row.
struct Scope {
    const TableRows* table = nullptr;
    const std::vector<store::Value>* row = nullptr;
};

struct Name {
    QString table; ///< empty: the current table
    QString field;
};

Name parted(const QString& name) {
    const qsizetype point = name.indexOf('.');
    if (point < 0) return {{}, name};
    return {name.left(point), name.mid(point + 1)};
}

QString shown(const store::Value& value, const QString& mask) {
    if (const auto* text = std::get_if<std::string>(&value)) return printable(QString::fromStdString(*text));
    const auto* number = std::get_if<double>(&value);
    if (!number) return {};
    const std::string allPlaces = "0.##########";
    QString figure =
        QString::fromStdString(base::formatNumber(*number, mask.isEmpty() ? allPlaces : mask.toStdString()));
    if (figure.startsWith('-')) figure.replace(0, 1, QChar(0x2212)); // print uses a true minus sign, not a hyphen
    return figure;
}

bool isFilled(const store::Value& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return !QString::fromStdString(*text).trimmed().isEmpty();
    const auto* number = std::get_if<double>(&value);
    return number && *number != 0;
}

double share(const Node& node) {
    QString width = node.attribute("width");
    if (width.endsWith('%')) width.chop(1);
    bool isNumber = false;
    const double percent = width.toDouble(&isNumber);
    if (!width.isEmpty() && (!isNumber || percent <= 0))
        failAt(node.file, node.line, "A width is a percentage above 0, such as 30%.");
    return percent / 100;
}

Align alignment(const Node& node, Align otherwise) {
    const QString align = node.attribute("align");
    if (align.isEmpty()) return otherwise;
    if (align == "left") return Align::left;
    if (align == "right") return Align::right;
    if (align == "center") return Align::centre;
    failAt(node.file, node.line, QString("\"%1\" is not an alignment: use left, center or right.").arg(align));
}

/// Shares that add up to 1; columns without a width divide what is left.
std::vector<double> completeShares(std::vector<double> widths, std::size_t count) {
    widths.resize(count, 0);
    double given = 0;
    for (const double width : widths)
        given += width;
    const auto open = static_cast<double>(std::count(widths.begin(), widths.end(), 0.0));
    const double left = open > 0 ? std::max(1 - given, 0.1) / open : 0;
    for (double& width : widths)
        if (width == 0) width = left;
    given = 0;
    for (const double width : widths)
        given += width;
    for (double& width : widths)
        width /= given;
    return widths;
}

class Filler {
public:
    Filler(const Definition& definition, const Snapshot& snapshot, QString printDatabase)
        : m_definition(definition), m_snapshot(snapshot), m_printDatabase(std::move(printDatabase)) {}

    Content filled() {
        const QString file = QString::fromStdString(m_definition.file.string());
        const bool hasTable = !m_definition.table.isEmpty();
        check(m_definition.body, hasTable ? &known(m_definition.table, file, m_definition.tableLine) : nullptr);
        const Scope scope = firstRow(m_definition.table);
        return {.title = m_definition.title,
                // A form without data is nobody's: the name kept from the last printout must not be on it.
                .client = hasTable ? printable(m_snapshot.client()).simplified() : QString(),
                .date = {},
                .headerLines = printable(m_snapshot.headerLines()),
                .footerLines = printable(m_snapshot.footerLines()),
                .blocks = flow(m_definition.body, scope)};
    }

private:
    Scope firstRow(const QString& name) const {
        if (name.isEmpty()) return {};
        const TableRows* table = m_snapshot.table(name);
        if (table->rows.empty())
            throw store::Error(store::Number::noCurrentRecord, m_printDatabase.toStdString(),
                               "Its table \"" + name.toStdString() + "\" has no row.");
        return {table, &table->rows.front()};
    }

    /// Looks up every field before anything is printed, so that a misspelt one is found even in an empty section.
    void check(const std::vector<Node>& nodes, const TableRows* atHand) const {
        for (const Node& node : nodes) {
            if (node.kind == Node::Kind::field) checkField(node, node.name, atHand);
            for (const QString& field : node.anyOf)
                checkField(node, field, atHand);
            check(node.children, node.kind == Node::Kind::rows ? &known(node.name, node.file, node.line) : atHand);
        }
    }

    const TableRows& known(const QString& table, const QString& file, qint64 line) const {
        if (const TableRows* rows = m_snapshot.table(table)) return *rows;
        failAt(file, line, QString("Print.mdb has no table \"%1\".").arg(table), store::Number::noSuchTableInQuery);
    }

    void checkField(const Node& node, const QString& written, const TableRows* atHand) const {
        const Name name = parted(written);
        const TableRows* table = name.table.isEmpty() ? atHand : &known(name.table, node.file, node.line);
        if (!table)
            failAt(node.file, node.line, QString("The field \"%1\" belongs to no table.").arg(written),
                   store::Number::noSuchField);
        if (table->column(name.field) < 0)
            failAt(node.file, node.line, QString("The table \"%1\" has no field \"%2\".").arg(table->name, name.field),
                   store::Number::noSuchField);
    }

    const store::Value& value(const QString& written, const Scope& scope) const {
        const Name name = parted(written);
        const bool atHand =
            name.table.isEmpty() || (scope.table && scope.table->name.compare(name.table, Qt::CaseInsensitive) == 0);
        const Scope from = atHand ? scope : firstRow(name.table);
        return (*from.row)[static_cast<std::size_t>(from.table->column(name.field))];
    }

    /// Receives each node; the sections around it are already resolved.
    using Use = std::function<void(const Node&, const Scope&)>;
    void visit(const std::vector<Node>& nodes, const Scope& scope, const Use& use) const {
        for (const Node& node : nodes) {
            if (node.kind == Node::Kind::rows)
                for (const auto& row : m_snapshot.table(node.name)->rows)
                    visit(node.children, {m_snapshot.table(node.name), &row}, use);
            else if (node.kind == Node::Kind::filled) {
                const auto filled = [&](const QString& field) { return isFilled(value(field, scope)); };
                if (std::any_of(node.anyOf.begin(), node.anyOf.end(), filled)) visit(node.children, scope, use);
            } else
                use(node, scope);
        }
    }

    std::vector<Block> flow(const std::vector<Node>& nodes, const Scope& scope) const {
        std::vector<Block> blocks;
        visit(nodes, scope, [&](const Node& node, const Scope& at) {
            if (node.kind == Node::Kind::text && node.name.trimmed().isEmpty()) return;
            if (node.kind != Node::Kind::element || node.name != "table") {
                Block made = block(node, at);
                const bool nothing = made.kind == Block::Kind::columns && made.columns.empty();
                if (!nothing) blocks.push_back(std::move(made));
                return;
            }
            for (Table& made : tables(node, at)) {
                Block& added = blocks.emplace_back();
                added.kind = Block::Kind::table;
                added.table = std::move(made);
            }
        });
        return blocks;
    }

    Block block(const Node& node, const Scope& scope) const {
        Block made;
        if (node.kind != Node::Kind::element) failAt(node.file, node.line, "Text must be in a paragraph or a cell.");
        if (node.name == "div") {
            fillColumns(made, node, scope);
        } else {
            made.kind = textKind(node);
            made.runs = runs(node, scope);
        }
        return made;
    }

    static Block::Kind textKind(const Node& node) {
        const QString styled =
            node.attribute("class").isEmpty() ? node.name : node.name + "." + node.attribute("class");
        if (styled == "h1") return Block::Kind::title;
        if (styled == "h1.cover") return Block::Kind::cover;
        if (styled == "h2") return Block::Kind::heading;
        if (styled == "p") return Block::Kind::paragraph;
        if (styled == "p.lead") return Block::Kind::lead;
        if (styled == "p.answer") return Block::Kind::answer;
        if (styled == "p.note") return Block::Kind::note;
        if (styled == "hr") return Block::Kind::rule;
        if (styled == "hr.page") return Block::Kind::pageBreak;
        failAt(node.file, node.line, QString("<%1> is not allowed here.").arg(styled));
    }

    void fillColumns(Block& made, const Node& node, const Scope& scope) const {
        made.kind = Block::Kind::columns;
        visit(node.children, scope, [&](const Node& child, const Scope& at) {
            if (child.kind == Node::Kind::text && child.name.trimmed().isEmpty()) return;
            if (child.name != "div") failAt(child.file, child.line, "A row of columns may contain only <div>.");
            std::vector<Block> column = flow(child.children, at);
            if (column.empty()) return; // the other columns get its space
            for (const Block& part : column)
                if (part.kind == Block::Kind::pageBreak)
                    failAt(child.file, child.line, "A page can't end between columns.");
            made.widths.push_back(share(child));
            made.columns.push_back(std::move(column));
        });
        made.widths = completeShares(made.widths, made.columns.size());
    }

    /// One table, or several if rows of the body begin another.
    std::vector<Table> tables(const Node& node, const Scope& scope) const {
        TableMaker maker{*this};
        visit(node.children, scope, [&](const Node& child, const Scope& at) {
            if (child.name == "col") {
                maker.widths.push_back(share(child));
                maker.aligns.push_back(alignment(child, Align::left));
            } else if (child.name == "thead" || child.name == "tbody") {
                const bool isHead = child.name == "thead";
                visit(child.children, at,
                      [&](const Node& row, const Scope& inside) { maker.add(row, inside, isHead); });
            } else {
                maker.add(child, at, false);
            }
        });
        return maker.made();
    }

    struct TableMaker {
        const Filler& filler;
        std::vector<double> widths{};
        std::vector<Align> aligns{};
        std::vector<Table> tables = std::vector<Table>(1);
        int headsToCome = 0; ///< number of following body rows that are still heads

        void add(const Node& row, const Scope& scope, bool isHead) {
            if (row.kind == Node::Kind::text && row.name.trimmed().isEmpty()) return;
            if (const int begun = row.attribute("heads").toInt(); begun > 0) {
                if (!tables.back().heads.empty() || !tables.back().rows.empty()) tables.emplace_back();
                headsToCome = begun;
            }
            const bool asHead = isHead || headsToCome > 0;
            if (headsToCome > 0) --headsToCome;
            filler.addRow(asHead ? tables.back().heads : tables.back().rows, row, scope, aligns);
        }

        std::vector<Table> made() {
            std::size_t count = widths.size();
            for (const Table& table : tables)
                for (const auto* rows : {&table.heads, &table.rows})
                    for (const Row& row : *rows)
                        count = std::max(count, row.cells.size());
            for (Table& table : tables)
                table.widths = completeShares(widths, count);
            return std::move(tables);
        }
    };

    void addRow(std::vector<Row>& rows, const Node& node, const Scope& scope, const std::vector<Align>& aligns) const {
        if (node.name != "tr") failAt(node.file, node.line, "A table may contain only rows.");
        Row& row = rows.emplace_back();
        const QString role = node.attribute("class");
        row.result = role == "result";
        row.total = role == "total";
        if (!role.isEmpty() && !row.result && !row.total)
            failAt(node.file, node.line, QString("\"%1\" is not a class of a row: use result or total.").arg(role));
        std::size_t column = 0;
        visit(node.children, scope, [&](const Node& child, const Scope& at) {
            if (child.kind == Node::Kind::text && child.name.trimmed().isEmpty()) return;
            if (child.name != "td" && child.name != "th")
                failAt(child.file, child.line, "A row may contain only cells.");
            row.cells.push_back(cell(child, at, column < aligns.size() ? aligns[column] : Align::left));
            column += static_cast<std::size_t>(row.cells.back().columns);
        });
    }

    Cell cell(const Node& node, const Scope& scope, Align align) const {
        Cell made{.runs = runs(node, scope),
                  .align = alignment(node, align),
                  .columns = 1,
                  .number = {},
                  .mask = {},
                  .date = {}};
        made.columns = std::max(1, node.attribute("colspan").toInt());
        const Node* only = nullptr;
        int parts = 0;
        Scope where;
        visit(node.children, scope, [&](const Node& child, const Scope& at) {
            if (child.kind == Node::Kind::text && child.name.trimmed().isEmpty()) return;
            only = &child;
            where = at;
            ++parts;
        });
        if (parts != 1 || only->kind != Node::Kind::field) return made;
        if (const auto* number = std::get_if<double>(&value(only->name, where))) made.number = *number;
        made.mask = only->mask;
        if (!made.number) readText(made);
        return made;
    }

    /// Recognises dates, and figures of lists whose rows also hold heads; both are stored as texts. A figure is
    /// right-aligned and grouped in threes: five or more digits in a row are an account or identity number.
    static void readText(Cell& cell) {
        const QString text = cell.text().trimmed();
        static const QRegularExpression figure(R"(^[-\x{2212}]?(0|[1-9]\d{0,3}|[1-9]\d{0,2}( \d{3})+)(\.\d+)?$)");
        const QRegularExpressionMatch match = figure.match(text);
        cell.date = QDate::fromString(text, "dd/MM/yyyy");
        if (cell.align != Align::right || !match.hasMatch()) return;
        cell.number = QString(text).remove(' ').replace(QChar(0x2212), '-').toDouble();
        const qsizetype places = match.capturedLength(3);
        cell.mask = "# ##0" + (places > 0 ? '.' + QString(places - 1, '0') : QString());
    }

    std::vector<Run> runs(const Node& node, const Scope& scope) const {
        std::vector<Run> made;
        addRuns(made, node.children, scope, {});
        return made;
    }

    /// Removes the definition's own indentation at both ends of a line; blanks of a stored text are kept.
    void addRuns(std::vector<Run>& made, const std::vector<Node>& nodes, const Scope& scope, Run face) const {
        visit(nodes, scope, [&](const Node& child, const Scope& at) {
            Run run = face;
            if (child.kind == Node::Kind::text) {
                run.text = child.name;
                const bool atStart = made.empty() || made.back().text.endsWith('\n');
                if (atStart && run.text.startsWith(' ')) run.text.remove(0, 1);
                if (&child == &nodes.back() && run.text.endsWith(' ')) run.text.chop(1);
            } else if (child.kind == Node::Kind::field) {
                run.text = shown(value(child.name, at), child.mask);
            } else if (child.name == "br") {
                run.text = "\n";
            } else if (child.name == "b" || child.name == "i") {
                (child.name == "b" ? run.bold : run.italic) = true;
                addRuns(made, child.children, at, run);
                return;
            } else {
                failAt(child.file, child.line, QString("<%1> is not allowed in a line of text.").arg(child.name));
            }
            if (run.text.isEmpty()) return;
            const bool sameFace = !made.empty() && made.back().bold == run.bold && made.back().italic == run.italic;
            if (sameFace)
                made.back().text += run.text;
            else
                made.push_back(run);
        });
    }

    const Definition& m_definition;
    const Snapshot& m_snapshot;
    QString m_printDatabase;
};

void collectTables(const std::vector<Node>& nodes, QStringList& tables) {
    const auto add = [&](const QString& table) {
        if (!table.isEmpty() && !tables.contains(table, Qt::CaseInsensitive)) tables << table;
    };
    for (const Node& node : nodes) {
        if (node.kind == Node::Kind::rows) add(node.name);
        if (node.kind == Node::Kind::field) add(parted(node.name).table);
        for (const QString& field : node.anyOf)
            add(parted(field).table);
        collectTables(node.children, tables);
    }
}

} // namespace

QStringList tablesOf(const Definition& definition) {
    QStringList tables;
    if (!definition.table.isEmpty()) tables << definition.table;
    collectTables(definition.body, tables);
    return tables;
}

Content fill(const Definition& definition, const Snapshot& snapshot, const QString& printDatabase) {
    return Filler(definition, snapshot, printDatabase).filled();
}

} // namespace reports
