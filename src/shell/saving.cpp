#include "shell/saving.h"

#include "datastore/paths.h"
#include "screenkit/desk.h"
#include "screenkit/trouble.h"

namespace shell {

using datastore::TheirChanges;
using screenkit::Answer;
using screenkit::BoxStyle;
using screenkit::Buttons;
using screenkit::Workplace;

namespace {

bool isAgreedTo(Workplace& work, const store::Error& error, const QString& question, const QString& title,
                Answer byDefault) {
    const QString text = QString::fromStdString(error.why() + "\n" + error.file()) + "\n\n" +
                         QObject::tr("Nothing was saved.") + " " + question;
    return work.desk.box(BoxStyle::question, text, title, Buttons::yesNo, byDefault) == Answer::yes;
}

void offerSaveAs(Workplace& work, const store::Error& error) {
    const QString question = QObject::tr("Do you want to save the client on the screen as a new one, with Save As ?");
    if (isAgreedTo(work, error, question, "Another Client in the File !", Answer::yes))
        work.shell.open("frmSaveFileAs");
}

/// Yes loses what another person has entered, so it is never the default button.
bool mayOverwrite(Workplace& work, const store::Error& error) {
    const QString question =
        QObject::tr("Do you want to overwrite those changes with your own ? To keep both, answer No and use Save As.");
    return isAgreedTo(work, error, question, "Client Changed in the File !", Answer::no);
}

} // namespace

std::optional<datastore::Saved> saveClient(Workplace& work) {
    std::optional<datastore::Saved> saved;
    const std::int16_t thenNew = work.record.SaveThenNew;
    screenkit::guarded(work.desk, QObject::tr("save the client"), [&] {
        try {
            saved = datastore::Save(work.record, work.paths.DataDbPath);
        } catch (const datastore::ChangedInFile& error) {
            if (!mayOverwrite(work, error)) return;
            work.record.SaveThenNew = thenNew; // the refused save has cleared it
            saved = datastore::Save(work.record, work.paths.DataDbPath, TheirChanges::overwrite);
        } catch (const datastore::OtherClientInFile& error) {
            offerSaveAs(work, error);
        }
    });
    return saved;
}

} // namespace shell
