#include "reports/report_support.h"

using namespace reporttest;

namespace {
using Definition = ReportTest;
} // namespace

// The body begins on line 5 of the file.
TEST_F(Definition, NamesFileAndLineOfEveryFault) {
    /// The error message of a definition; empty if it runs.
    const auto messageOf = [this](const std::string& body, const std::string& table = "Loans") {
        define("Own.rpt", page(body, table));
        const auto error = storetest::caughtFrom([this] { engine.prepare("Own.rpt"); });
        return error ? error->message() : std::string();
    };
    define("piece.rpt", "<p>sound</p>\n<p>{{Nowhere}}</p>\n");
    define("loop.rpt", "<p>x</p>\n{{>loop}}\n");
    define("nothing.rpt", ""); // an empty file, as a failed copy leaves it
    EXPECT_EQ(storetest::errorOf([this] { engine.prepare("Lonrepa.rpt"); }), 3021) << "its table has no row yet";
    feedLoan();
    const struct {
        const char *body, *file, *line, *names, *number;
    } faults[] = {
        {"<p>ok</p>\n<p>{{Num9}}</p>", "Own.rpt", "Line 6:", "\"Num9\"", "3265"},
        {"<p>{{Amount.Num1}}</p>", "Own.rpt", "Line 5:", "\"Amount\"", "3078"},
        {"\n\n{{#Amorts}}\n<p>x</p>{{/Amorts}}", "Own.rpt", "Line 7:", "\"Amorts\"", "3078"},
        {"{{#Amort}}<p>{{Num1}}</p>{{/Amort}}", "Own.rpt", "Line 5:", "\"Num1\"", "3265"},
        {"{{?Filled}}<p>x</p>{{/Filled}}", "Own.rpt", "Line 5:", "\"Filled\"", "3265"},
        {"{{>nothing}}", "nothing.rpt", "Line 1:", "empty", "321"},
        {"<p>a</p>\n{{#Amort}}\n<p>b</p>\n", "Own.rpt", "Line 6:", "{{#Amort}}", "321"},
        {"<table>\n{{#Amort}}\n<tr><td>{{Year}}</td></tr>\n</table>\n{{/Amort}}", "Own.rpt", "Line 6:", "{{#Amort}}",
         "321"},
        {"{{?Heading}}<p>a</p>{{#Amort}}\n{{/Heading}}{{/Amort}}", "Own.rpt", "Line 5:", "{{#Amort}}", "321"},
        {"<p>a</p>\n{{/Amort}}", "Own.rpt", "Line 6:", "{{/Amort}}", "321"},
        {"<p>{{Num1</p>", "Own.rpt", "Line 5:", "}}", "321"},
        {"<p>one\n<b>two</p>", "Own.rpt", "Line 6:", "", "321"},
        {"<p class=\"loud\">a</p>", "Own.rpt", "Line 5:", "<p.loud>", "321"},
        {"stray words", "Own.rpt", "Line", "paragraph", "321"},
        {"<table><col width=\"x\"/></table>", "Own.rpt", "Line 5:", "30%", "321"},
        {"<table><col align=\"middle\"/></table>", "Own.rpt", "Line 5:", "\"middle\"", "321"},
        {"<div>\n<div><hr class=\"page\"/></div></div>", "Own.rpt", "Line 6:", "between columns", "321"},
        {"<p>a</p>\n\n{{>absent}}", "Own.rpt", "Line 7:", "absent.rpt", "321"},
        {"{{>piece}}", "piece.rpt", "Line 2:", "\"Nowhere\"", "3265"},
        {"{{>loop}}", "loop.rpt", "Line 2:", "\"loop\"", "321"},
    };
    for (const auto& fault : faults) {
        const std::string message = messageOf(fault.body);
        for (const char* part : {fault.file, fault.line, fault.names})
            EXPECT_THAT(message, testing::HasSubstr(part)) << fault.body;
        EXPECT_THAT(message, testing::EndsWith(std::string("(") + fault.number + ")")) << fault.body;
    }
    EXPECT_THAT(messageOf("<p>a</p>", "Lones"), testing::HasSubstr("Line 3: Print.mdb has no table \"Lones\""));
    EXPECT_EQ(messageOf("<p>{{Num1}}</p>"), "");
}

TEST_F(Definition, PrintsFieldsByMaskAndSectionsWhenFilled) {
    feed("Loans", {{"Heading", "  Two blanks"},
                   {"Num1", 1234567.125},
                   {"Num2", 0},
                   {"Num3", 0.1},
                   {"FinText1", " "},
                   {"FinText2", "shown"}});
    feedAmortisation(3);
    define("own.rpt", page("<!-- a comment {{Num1}} -->\n"
                           "<p>A{{num1:R # ### ### ##0.00}}Z</p><p>B{{Num1}}Z</p><p>C{{Num3:0.000 %}}Z</p>\n"
                           "<p>D{{Num4:0.00}}Z</p><p>E{{Heading}}Z</p><p>F{{Loans.Num3}} of {{Amort.Year}}Z</p>\n"
                           "{{?FinText1}}<p>blank text</p>{{/FinText1}}{{?Num2}}<p>nought</p>{{/Num2}}\n"
                           "{{?FinText1A}}<p>null</p>{{/FinText1A}}{{?FinText2}}<p>G{{FinText2}}Z</p>{{/FinText2}}\n"
                           "{{?Num2|FinText2}}<p>either</p>{{/Num2|FinText2}}\n"
                           "{{#AMORT}}<p>row{{Year:##}} {{Loans.FinText2}}</p>{{/AMORT}}"));
    expectWords(text("own.rpt"),
                {"AR 1 234 567.12Z", "B1234567.125Z", "C0.100 %Z", "DZ", "Two blanksZ", "F0.1 of 1Z", "GshownZ",
                 "either", "row1 shown", "row3 shown"},
                {"comment", "blank text", "nought", "null"});
}
