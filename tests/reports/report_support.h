#pragma once

#include <gmock/gmock.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPrinter>
#include <QProcess>
#include <QTest>

#include "datastore/printfeed.h"
#include "reports/export.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "screenkit/testdesk.h"
#include "store/store_support.h"

namespace reporttest {

namespace fs = std::filesystem;
using datastore::PrintFeed;
using datastore::Row;
using reports::Destination;

inline QString runTool(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted()) {
        ADD_FAILURE() << program.toStdString() << " is not installed";
        return {};
    }
    process.waitForFinished(30000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// The text of a PDF, with a form feed after each page. `-layout` keeps the text of a line together.
inline QString textOfPdf(const QString& file) { return runTool("pdftotext", {"-layout", file, "-"}); }
inline QString textOfPdf(const QByteArray& pdf) {
    const storetest::Folder folder;
    storetest::put(folder / "read.pdf", pdf.toStdString());
    return textOfPdf(QString::fromStdString((folder / "read.pdf").string()));
}
/// Expects the text to contain each word of the first list and none of the second.
inline void expectWords(const QString& text, const QStringList& there, const QStringList& absent = {}) {
    for (const QString& words : there)
        EXPECT_TRUE(text.contains(words)) << words.toStdString() << " is not in\n" << text.toStdString();
    for (const QString& words : absent)
        EXPECT_FALSE(text.contains(words)) << words.toStdString() << " is in\n" << text.toStdString();
}
inline QStringList pagesOfPdf(const QByteArray& pdf) { return textOfPdf(pdf).split('\f', Qt::SkipEmptyParts); }

/// The outline and the objects of a PDF file.
inline QJsonObject jsonOf(const QString& pdf) {
    const QStringList asJson{"--json=1", "--json-key=outlines", "--json-key=objects", "--json-key=pages", pdf};
    return QJsonDocument::fromJson(runTool("qpdf", asJson).toUtf8()).object();
}
/// The lines of its outline: "1 Title page 1", with their level in front.
inline QStringList outlineOf(const QJsonObject& json) {
    QStringList lines;
    const std::function<void(const QJsonArray&, int)> add = [&](const QJsonArray& items, int level) {
        for (const QJsonValue& item : items) {
            const QString page = QString::number(item["destpageposfrom1"].toInt());
            lines << QString("%1 %2 page %3").arg(QString::number(level), item["title"].toString(), page);
            add(item["kids"].toArray(), level + 1);
        }
    };
    add(json["outlines"].toArray(), 1);
    return lines;
}

/// The line that contains a word, with single blanks between words.
inline QString simplifiedLine(const QString& text, const QString& withWord) {
    for (const QString& line : text.split('\n'))
        if (line.contains(withWord)) return line.simplified();
    return {};
}

/// A program folder with the shipped definitions and databases, and an engine that uses it.
class ReportTest : public testing::Test {
protected:
    ReportTest() {
        for (const auto& entry : fs::directory_iterator(fs::path(MARLOWBECK_SOURCE_DIR) / "data/reports"))
            fs::copy_file(entry.path(), folder / entry.path().filename().string());
        fs::copy_file(fs::path(MARLOWBECK_PROGRAM_DIR).parent_path() / "databases/Print.mdb", print);
        desk.printTo = printed;
    }

    /// Writes a definition for the test; its line 1 is the first line of the text.
    void define(const std::string& name, const std::string& text) { storetest::put(folder / name, text); }
    static std::string page(const std::string& body, const std::string& table = "Loans") {
        return "<html>\n<head><title>Own title</title>\n<meta name=\"table\" content=\"" + table +
               "\"/></head>\n<body>\n" + body + "\n</body>\n</html>\n";
    }

    void feed(const std::string& table, const Row& row) {
        PrintFeed rows(print, client);
        rows.replace(table, row);
        rows.commit();
    }
    void feedLoan(const std::string& name = "Monthly repayment") {
        feed("Loans", {{"Heading", name},
                       {"Num1", 250000},
                       {"Num2", 240},
                       {"Num3", 11.75},
                       {"Num4", 2709.2676549},
                       {"FinText1", "Total Interest"},
                       {"FinText1A", ": "},
                       {"FinNum1", 400224.24},
                       {"FinText2", "Total Repayments"},
                       {"FinNum2", 650224.24},
                       {"YearMon", "Month"}});
    }
    void feedAmortisation(int count) {
        std::vector<Row> rows;
        for (int month = 1; month <= count; ++month)
            rows.push_back({{"Year", month}, {"Capital", 1000.005 + month}, {"Interest", 2447.92}, {"Required", 0.5}});
        PrintFeed all(print, client);
        all.replace("Amort", rows);
        all.commit();
    }

    QString pathOf(const std::string& name) const { return QString::fromStdString((folder / name).string()); }
    QStringList pages(const QString& definition) { return pagesOfPdf(engine.pdf(definition)); }
    QString text(const QString& definition) { return textOfPdf(engine.pdf(definition)); }

    std::string client; ///< the client of these reports
    storetest::Folder folder;
    fs::path print = folder / "Print.mdb";
    screenkit::TestDesk desk;
    QString printed = pathOf("printed.pdf");
    reports::Engine engine{desk, folder.path(), [this] {
                               auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
                               printer->setOutputFormat(QPrinter::PdfFormat);
                               printer->setOutputFileName(printed);
                               return printer;
                           }};
};

} // namespace reporttest
