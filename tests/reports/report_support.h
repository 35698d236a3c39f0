#pragma once

#include <gmock/gmock.h>

#include <QPrinter>
#include <QProcess>
#include <QtTest>
#include <deque>

#include "datastore/printfeed.h"
#include "reports/export.h"
#include "reports/previewwindow.h"
#include "reports/report.h"
#include "screenkit/desk.h"
#include "store/store_support.h"

namespace reporttest {

namespace fs = std::filesystem;
using datastore::PrintFeed;
using datastore::Row;
using reports::Destination;

/// Keeps the boxes it was asked to show; file names are answered from a queue.
class RecordingDesk : public screenkit::Desk {
public:
    struct Box {
        screenkit::BoxStyle style;
        QString text, title;
    };
    std::vector<Box> boxes;
    std::deque<std::optional<QString>> fileNames;
    QString suggested;
    QStringList filters;
    bool printerInstalled = true;
    std::function<bool(QPrinter&)> printDialog;

    screenkit::Answer box(screenkit::BoxStyle style, const QString& text, const QString& title, screenkit::Buttons,
                          std::optional<screenkit::Answer>) override {
        boxes.push_back({style, text, title});
        return screenkit::Answer::ok;
    }
    std::optional<QString> fileToSave(const QString&, const QString& name, const QStringList& offered) override {
        suggested = name;
        filters = offered;
        if (fileNames.empty()) return {};
        const auto answer = fileNames.front();
        fileNames.pop_front();
        return answer;
    }
    std::optional<QString> fileToOpen(const QString&, const QString&, const QStringList&) override { return {}; }
    std::optional<QString> input(const QString&, const QString&, const QString&) override { return {}; }
    bool choosePrinter(QPrinter& printer) override { return printDialog && printDialog(printer); }
    bool hasPrinter() override { return printerInstalled; }
    void bell() override {}
    QDate today() override { return {2026, 11, 22}; }
    void openOnDesktop(const QString&) override {}
    bool startProgram(const QStringList&) override { return false; }
};

inline QString runTool(const QString& program, const QStringList& arguments, const QByteArray& input = {}) {
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForStarted()) {
        ADD_FAILURE() << program.toStdString() << " is not installed";
        return {};
    }
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished(30000);
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// The text of a PDF, a form feed after each page. `-layout` keeps what stands on one line on one line.
inline QString textOfPdf(const QByteArray& pdf) {
    const storetest::Folder folder;
    const fs::path file = folder / "read.pdf";
    storetest::put(file, pdf.toStdString());
    return runTool("pdftotext", {"-layout", QString::fromStdString(file.string()), "-"});
}
inline QStringList pagesOfPdf(const QByteArray& pdf) { return textOfPdf(pdf).split('\f', Qt::SkipEmptyParts); }

/// A line's words parted by single blanks.
inline QString simplifiedLine(const QString& text, const QString& withWord) {
    for (const QString& line : text.split('\n'))
        if (line.contains(withWord)) return line.simplified();
    return {};
}

/// A program folder with the shipped definitions and databases, and an engine that works in it.
class ReportTest : public testing::Test {
protected:
    ReportTest() {
        for (const auto& entry : fs::directory_iterator(fs::path(MARLOWBECK_SOURCE_DIR) / "data/reports"))
            fs::copy_file(entry.path(), folder / entry.path().filename().string());
        fs::copy_file(fs::path(MARLOWBECK_PROGRAM_DIR).parent_path() / "databases/Print.mdb", print);
    }

    /// Writes a definition of one's own; lines are counted from the first letter given.
    void define(const std::string& name, const std::string& text) { storetest::put(folder / name, text); }
    static std::string page(const std::string& body, const std::string& table = "Loans") {
        return "<html>\n<head><title>Own title</title>\n<meta name=\"table\" content=\"" + table +
               "\"/></head>\n<body>\n" + body + "\n</body>\n</html>\n";
    }

    void feed(const std::string& table, const Row& row) {
        PrintFeed rows(print);
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
        PrintFeed all(print);
        all.replace("Amort", rows);
        all.commit();
    }

    QStringList pages(const QString& definition) { return pagesOfPdf(engine.pdf(definition)); }
    QString text(const QString& definition) { return textOfPdf(engine.pdf(definition)); }

    storetest::Folder folder;
    fs::path print = folder / "Print.mdb";
    RecordingDesk desk;
    QString printed = QString::fromStdString((folder / "printed.pdf").string());
    reports::Engine engine{desk, folder.path(), [this] {
                               auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
                               printer->setOutputFormat(QPrinter::PdfFormat);
                               printer->setOutputFileName(printed);
                               return printer;
                           }};
};

} // namespace reporttest
