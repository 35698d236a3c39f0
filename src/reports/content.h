#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <filesystem>
#include <optional>
#include <vector>

namespace reports {

/// A piece of text in one typeface.
struct Run {
    QString text; ///< '\n' breaks the line
    bool bold = false;
    bool italic = false;
};

enum class Align { left, centre, right };

struct Cell {
    std::vector<Run> runs;
    Align align = Align::left;
    int columns = 1; ///< number of columns that it spans
    /// The number shown by the text, if the cell consists of a single field that is a number.
    std::optional<double> number;
    QString mask; ///< the mask of that number
    QDate date;   ///< the date shown by the text, likewise; invalid if there is none

    QString text() const;
};

struct Row {
    std::vector<Cell> cells;
    bool result = false; ///< the result that the report is about
    bool total = false;  ///< the sum of rows above it
    /// In the contents of a document: the section, from 0, that the row leads to. Its last cell shows the number of
    /// that section's first page, written there by layOut. Below 0 for other rows.
    int leadsTo = -1;
};

struct Table {
    std::vector<double> widths; ///< share of the width for each column; their sum is 1
    std::vector<Row> heads;     ///< repeated at the top of each page
    std::vector<Row> rows;
};

/// A part of the report's text. `columns` stand side by side, each with its own blocks.
struct Block {
    /// `answer` is the sentence that answers the report's question. Behind a `pageBreak` a new page begins; it never
    /// stands in columns. `cover` is a title in the largest type, with room above it.
    enum class Kind { title, lead, answer, heading, paragraph, note, rule, table, columns, pageBreak, cover };

    Kind kind = Kind::paragraph;
    std::vector<Run> runs;
    Table table;
    std::vector<double> widths;              ///< for columns: their shares of the width
    std::vector<std::vector<Block>> columns; ///< for columns: the content of each
};

/// A report filled with its figures: the source of its pages and of all exports. It has no link to any file.
struct Content {
    QString title;           ///< from the definition
    QString client;          ///< whose report it is; empty if it is about no client
    QString date;            ///< the day of printing, dd/mm/yyyy; set by the engine
    QStringList headerLines; ///< four; an empty one takes no space
    QStringList footerLines; ///< four
    std::vector<Block> blocks;

    /// The text beside the date at the head of a page: on the first page the client, unless the heading is that name;
    /// on the others client and title.
    QString headOf(bool firstPage) const;
};

/// A report as part of a document: it begins on a new page and has the page heads of its own.
struct Section {
    QString heading; ///< its line in the contents and the outline; empty if it stands in neither
    int level = 1;   ///< 1: a chapter begins with it; 2: a further report of that chapter
    Content content;
};

QString textOf(const std::vector<Run>& runs);

/// The text with uniform line ends and without characters that an export format can't hold.
QString printable(QString text);
/// The same for several single lines.
QStringList printable(QStringList lines);

/// The title in the properties of exported files: the report's title and the client's name.
QString documentTitle(const QString& title, const QString& client);
QString documentTitle(const Content& content);
/// The practice, as author of exported files: the first header line that is not empty.
QString practiceOf(const QStringList& headerLines);

struct Definition;
class Snapshot;

/// The tables that a definition reads.
QStringList tablesOf(const Definition& definition);

/// Fills a definition with rows. A missing table or field is a store::Error with the definition's file and line, even
/// if the section around it would not be printed; a header table without its row is error 3021.
Content fill(const Definition& definition, const Snapshot& snapshot, const QString& printDatabase);

/// Fills the definition of this name in a folder, found without case and with or without a separator before it
/// ("\Lonrepa.rpt"), with the rows of the print database, as printed on that day. Throws store::Error.
Content filledFrom(const std::filesystem::path& folder, const QString& name, const std::filesystem::path& printDatabase,
                   const QDate& day);

} // namespace reports
