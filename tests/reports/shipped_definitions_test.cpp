// Rules for every shipped definition, checked in its source, without rows.
#include <gtest/gtest.h>

#include <QDir>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <functional>

#include "reports/definition.h"
#include "screenkit/numberfield.h"

namespace {

using reports::Node;

qsizetype places(const QString& mask) {
    const qsizetype point = mask.indexOf('.');
    return point < 0 ? 0 : mask.mid(point + 1).count('0') + mask.mid(point + 1).count('#');
}

void walk(const std::vector<Node>& nodes, const std::function<void(const Node&)>& use) {
    for (const Node& node : nodes) {
        use(node);
        walk(node.children, use);
    }
}

std::vector<const Node*> below(const Node& node, const QSet<QString>& names) {
    std::vector<const Node*> found;
    walk(node.children, [&](const Node& child) {
        if (child.kind == Node::Kind::element && names.contains(child.name)) found.push_back(&child);
    });
    return found;
}

/// True for a cell that contains only a figure.
bool isFigure(const Node& cell) {
    int figures = 0, others = 0;
    walk(cell.children, [&](const Node& part) {
        if (part.kind == Node::Kind::field) ++(part.mask.isEmpty() ? others : figures);
        if (part.kind == Node::Kind::text && !part.name.trimmed().isEmpty()) ++others;
    });
    return figures == 1 && others == 0;
}

/// Passes each shipped definition to `use`; fails if there are none.
void eachDefinition(const std::function<void(const std::vector<Node>&)>& use) {
    const QDir folder(QString(MARLOWBECK_SOURCE_DIR) + "/data/reports");
    const QStringList files = folder.entryList({"*.rpt"});
    EXPECT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        SCOPED_TRACE(file.toStdString());
        use(reports::readDefinition(folder.filePath(file).toStdString()).body);
    }
}

/// Percentages that the record holds as whole numbers.
const QSet<QString> wholePercents{"OFTaxRate", "LTaxRate", "LCurrChange"};

/// The fewest decimal places allowed: as many as the screen's field accepts.
qsizetype leastPlaces(const Node& field) {
    // Calculated figures, with the places that the screens show.
    static const QMap<QString, qsizetype> shorter{
        {"MARGRATE", 0}, {"AVRATE", 2}, {"AVRATEAFT", 2}, {"DBenSpousePerc", 2}};
    if (shorter.contains(field.name)) return shorter[field.name];
    static const QSet<QString> wholeRand{"InvAmount", "IncomeFV", "IncomeRA", "IncomeShort", "ALTEMV", "FundsFV"};
    static const QRegularExpression wholeTables("(RetiremA|coveryears|EducatnA)\\.rpt$");
    if (wholeRand.contains(field.name) || wholePercents.contains(field.name) || field.file.contains(wholeTables))
        return 0;
    if (field.mask.contains('%')) return places(screenkit::percent.mask);
    return field.mask.contains("# #") ? places(screenkit::money.mask) : 0;
}

TEST(ShippedDefinitions, CutNoFigure) {
    // A whole figure's name says what it counts: an age, years, a number; ANS2 of the daily balance are days.
    static const QRegularExpression counts("Age|Year|Period|[Nn]um$|^Num2$|^term$|^MARGRATE$|^ANS2$|^Xper$|^MonRep\\d");
    const auto check = [&](const Node& field) {
        if (field.kind != Node::Kind::field || field.mask.isEmpty()) return;
        EXPECT_GE(places(field.mask), leastPlaces(field)) << field.name.toStdString();
        const bool isAmount = field.mask.contains("# #");
        EXPECT_TRUE(isAmount || places(field.mask) > 0 || field.name.contains(counts) ||
                    wholePercents.contains(field.name))
            << field.name.toStdString();
    };
    eachDefinition([&](const std::vector<Node>& body) { walk(body, check); });
}

// In a row that lacks a cell, figures would be under the wrong heads.
void checkTable(const Node& table) {
    const auto columns = below(table, {"col"});
    double width = 0;
    for (const Node* column : columns)
        width += column->attribute("width").chopped(1).toDouble();
    EXPECT_NEAR(width, 100, 0.01) << table.line;
    for (const Node* row : below(table, {"tr"})) {
        std::size_t at = 0;
        for (const Node* cell : below(*row, {"td", "th"})) {
            const Node& head = *columns.at(static_cast<std::size_t>(std::min(at, columns.size() - 1)));
            const Node& says = cell->attribute("align").isEmpty() ? head : *cell;
            EXPECT_TRUE(!isFigure(*cell) || says.attribute("align") == "right") << row->line;
            at += static_cast<std::size_t>(std::max(1, cell->attribute("colspan").toInt()));
        }
        EXPECT_EQ(at, columns.size()) << row->line;
    }
}

TEST(ShippedDefinitions, FillEachTableAndSetFiguresToTheRight) {
    eachDefinition([](const std::vector<Node>& body) {
        Node whole;
        whole.children = body;
        for (const Node* table : below(whole, {"table"}))
            checkTable(*table);
    });
}

} // namespace
