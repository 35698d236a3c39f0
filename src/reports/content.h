#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace reports {

/// A stretch of text in one face.
struct Run {
    QString text; ///< '\n' breaks the line
    bool bold = false;
    bool italic = false;
};

enum class Align { left, centre, right };

struct Cell {
    std::vector<Run> runs;
    Align align = Align::left;
    int columns = 1; ///< how many columns it spans
    /// The number behind the text, if the cell holds one field that is a number and nothing else.
    std::optional<double> number;
    QString mask; ///< by which that number was written
    QDate date;   ///< the day behind the text, likewise; invalid if there is none

    QString text() const;
};

struct Row {
    std::vector<Cell> cells;
    bool result = false; ///< the figure that the report was made for
    bool total = false;  ///< adds up rows above it
};

struct Table {
    std::vector<double> widths; ///< share of the width of each column; together 1
    std::vector<Row> heads;     ///< repeated at the top of each page
    std::vector<Row> rows;
};

/// A part of the page's flow. Columns stand side by side, each a flow of its own.
struct Block {
    /// `answer` is a sentence that the report was made for.
    enum class Kind { title, lead, answer, heading, paragraph, note, rule, table, columns };

    Kind kind = Kind::paragraph;
    std::vector<Run> runs;
    Table table;
    std::vector<double> widths;              ///< of columns: their shares of the width
    std::vector<std::vector<Block>> columns; ///< of columns: what each holds
};

/// A report filled with its figures: what the pages and all exports are made from. It holds no link to any file.
struct Content {
    QString title;           ///< the definition's own
    QString client;          ///< whose report it is; empty if nobody's
    QString date;            ///< of the printing, dd/mm/yyyy; the engine's to say
    QStringList headerLines; ///< four; an empty one takes no room
    QStringList footerLines; ///< four
    std::vector<Block> blocks;

    /// What a page's head says beside the day: of the first page the client, unless its heading is that name; of the
    /// others client and title.
    QString headOf(bool firstPage) const;
};

QString textOf(const std::vector<Run>& runs);

/// Text as a page can hold it: line ends alike, none of the characters that no export format takes.
QString printable(QString text);
/// Each on its one line.
QStringList printable(QStringList lines);

/// What files of the report are called in their own properties: its title, and the client's name.
QString documentTitle(const QString& title, const QString& client);
QString documentTitle(const Content& content);
/// The practice, as the author of such files: the first header line that is not empty.
QString practiceOf(const QStringList& headerLines);

struct Definition;
class Snapshot;

/// Tables that a definition reads.
QStringList tablesOf(const Definition& definition);

/// Puts the rows into the definition. A table or field that the rows lack is a store::Error with the definition's file
/// and line, also where the section around it would not be printed; a header table without its row is error 3021.
Content fill(const Definition& definition, const Snapshot& snapshot, const QString& printDatabase);

} // namespace reports
