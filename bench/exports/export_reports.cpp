// Writes every report definition in every file format, from full tables, and a document of all of them, for
// bench/check-exports.
//
//   export_reports DEFINITIONS PRINT.MDB OUT

#include <QApplication>
#include <cstdio>
#include <filesystem>
#include <set>

#include "base/numberformat.h"
#include "datastore/printfeed.h"
#include "reports/definition.h"
#include "reports/document.h"
#include "reports/export.h"
#include "reports/report.h"
#include "screenkit/look.h"
#include "screenkit/realdesk.h"
#include "store/files.h"

namespace {

namespace fs = std::filesystem;
using datastore::Row;

/// How much the tables hold.
struct Fill {
    const char* name;
    int rows;         ///< in tables of many rows
    bool longTexts;   ///< notes of several pages, lines with blanks, tabs and quotation marks
    bool headAndFoot; ///< the practice's header and footer lines
};
constexpr Fill fills[] = {{"short", 3, false, false}, {"full", 14, false, true}, {"long", 130, true, true}};

const std::set<std::string> manyRows{"Amort",    "ItemisePrint", "PolsInvestsAmorts",   "AllDetails",
                                     "UnitHist", "CGTDetails",   "CGTTrustOtherItemise"};

std::string textFor(const std::string& field, int row, const Fill& fill) {
    const auto has = [&](const char* part) { return field.find(part) != std::string::npos; };
    if (has("Date") || has("DOB") || has("NextApp")) return row % 2 == 0 ? "28/02/1966" : "03/12/2027";
    if (field == "Name") return "Ms T. Ṱhoho-Nḓou & O'Brien \"<b>\"";
    if (field == "NewGrid") return row % 8 == 0 ? "List " + std::to_string(row) : "";
    if (field == "Amount" && row % 8 > 1) return base::formatNumber(1234.5 * row, "# ### ##0.00");
    if (field == "FromAge" && row % 8 > 1) return std::to_string(40 + row % 30);
    const bool notes = has("Notes") || has("Comments") || has("Note");
    if (notes && fill.longTexts && row % 9 == 0) {
        std::string text = "First  line, two blanks\tand a tab\n\n  indented line\n";
        for (int line = 0; line < 260; ++line)
            text += "Sentence " + std::to_string(line) + " of the notes about nothing in particular. ";
        return text;
    }
    return field.substr(0, 6) + " " + std::to_string(row); // short enough for the narrowest column
}

std::string fitting(const std::string& text, int size) {
    return size == 0 ? text : QString::fromStdString(text).left(size).toStdString();
}

/// As many months as fill two pages, and as many policies as a wealthy client has.
int rowsOf(const std::string& table, const Fill& fill) {
    if (!manyRows.contains(table)) return 1;
    return table == "PolsInvestsAmorts" ? std::min(fill.rows, 20) : fill.rows;
}

Row rowFor(store::Database& database, const std::string& table, int row, const Fill& fill) {
    Row made;
    double figure = 1000.25 + 37 * row;
    for (const store::Column& column : database.columns(table)) {
        figure = figure * 1.07 + 1;
        if (column.declared.type == store::Type::Double)
            made.emplace_back(column.name, table == "Amort" && column.name == "Year" ? row + 1.0 : figure);
        else
            made.emplace_back(column.name, fitting(textFor(column.name, row, fill), column.declared.size));
    }
    return made;
}

void feedAll(const fs::path& print, const QStringList& tables, const Fill& fill) {
    std::vector<std::pair<std::string, std::vector<Row>>> made;
    {
        store::Database database(print);
        for (const QString& name : tables) {
            const std::string table = name.toStdString();
            std::vector<Row>& rows = made.emplace_back(table, std::vector<Row>{}).second;
            for (int row = 0; row < rowsOf(table, fill); ++row)
                rows.push_back(rowFor(database, table, row, fill));
        }
    }
    datastore::PrintFeed feed(print, "Ms T. Ṱhoho-Nḓou");
    for (const auto& [table, rows] : made)
        feed.replace(table, rows);
    Row lines;
    for (int line = 0; line < 4; ++line) {
        const std::string number = std::to_string(line);
        lines.emplace_back("HEADERV" + number, fill.headAndFoot ? "Marlow & Partners line " + number : "");
        lines.emplace_back("footv" + number, fill.headAndFoot && line != 1 ? "Signed, foot line " + number : "");
    }
    feed.replace("HeadFoot", lines);
    feed.commit();
}

/// Writes a report in each of its formats; file: without an ending.
void writeAll(const reports::Report& report, const fs::path& file) {
    for (const reports::Format format : reports::formatsOf(report))
        store::writeFile(file.string() + reports::endingOf(format).toStdString(),
                         reports::exported(report, format).toStdString());
}

void exportAll(const fs::path& definitions, const fs::path& printTemplate, const fs::path& out) {
    const fs::path folder = out / "program";
    fs::remove_all(out);
    fs::create_directories(folder);
    for (const auto& entry : fs::directory_iterator(definitions))
        fs::copy_file(entry.path(), folder / entry.path().filename());
    const fs::path print = folder / "Print.mdb";
    fs::copy_file(printTemplate, print);
    fs::permissions(print, fs::perms::owner_write, fs::perm_options::add);
    screenkit::RealDesk desk;
    const reports::Engine engine(desk, folder);
    reports::DocumentPlan document{.definitions = folder,
                                   .printDatabase = print,
                                   .date = desk.today(),
                                   .title = "Document",
                                   .client = "Ms T. Ṱhoho-Nḓou",
                                   .fileClient = {},
                                   .fileTitle = {},
                                   .chapters = {}};
    for (const auto& entry : fs::directory_iterator(definitions)) {
        const reports::Definition definition = reports::readDefinition(folder / entry.path().filename());
        if (definition.title.isEmpty()) continue; // it is included by other definitions
        for (const Fill& fill : fills) {
            feedAll(print, reports::tablesOf(definition), fill);
            const auto report = engine.prepare(QString::fromStdString(entry.path().filename().string()));
            writeAll(*report, out / (entry.path().stem().string() + "-" + fill.name));
        }
        document.chapters.push_back({definition.title, [=, &print](const reports::PrintSection& run) {
                                         feedAll(print, reports::tablesOf(definition), fills[1]);
                                         run({entry.path().filename().string(), ""});
                                     }});
    }
    writeAll(makeDocument(document), out / "document");
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    screenkit::look::apply(application);
    if (argc != 4) return std::fputs("export_reports DEFINITIONS PRINT.MDB OUT\n", stderr), 2;
    try {
        exportAll(argv[1], argv[2], argv[3]);
    } catch (const store::Error& error) {
        return std::fputs((error.message() + "\n").c_str(), stderr), 1;
    }
}
