#include "assessment/filetextstable.h"
#include "base/text.h"
#include "clientfile/partlists.h"
#include "datastore/settings.h"

namespace clientfile {

namespace {

/// True if all texts are empty; blanks and empty lines print as nothing.
bool isBlank(const assessment::FileTexts& texts) {
    for (const std::string& text :
         {texts.basis, texts.considered, texts.recommendation, texts.replacement, texts.decision})
        if (text.find_first_not_of(" \t\r\n") != std::string::npos) return false;
    return true;
}

std::string whyNoAdvice(const Source& source) {
    return isBlank(source.record.fileTexts) ? "No text is written yet." : "";
}

void printAdvice(const Source& source, const Choices&, const Print& print) {
    datastore::Row row = datastore::rowOf(assessment::fileTextsTable(), source.record.fileTexts);
    row.emplace_back("Name", base::trim(source.record.client.Name));
    datastore::PrintFeed feed(source.paths.PrintDbPath, source.record.client.Name);
    feed.replace("ClientFileTexts", row);
    feed.commit();
    print({"\\Advice.rpt", "What the Advice Rests On"});
}

} // namespace

std::vector<Part> adviceParts() { return {{"advice", "What the Advice Rests On", {}, whyNoAdvice, printAdvice}}; }

} // namespace clientfile
