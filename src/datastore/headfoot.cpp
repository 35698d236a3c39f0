#include "datastore/headfoot.h"

#include "assessment/rows.h"
#include "assessment/tables.h"
#include "store/error.h"

namespace datastore {

using assessment::HeadFootLines;

HeadFootLines readHeadFoot(store::Database& database) {
    HeadFootLines lines;
    assessment::RowReader reader(database, assessment::headFootTable());
    if (!reader.next(lines))
        throw store::Error(store::Number::noCurrentRecord, database.path().string(),
                           "The file has no header and footer lines.");
    return lines;
}

HeadFootLines readHeadFoot(const Paths& paths) {
    store::Database database(paths.DataDbPath);
    return readHeadFoot(database);
}

void writeHeadFoot(store::Database& database, HeadFootLines& lines) {
    assessment::RowWriter writer(database, assessment::headFootTable());
    if (const auto row = assessment::firstRow(database, assessment::headFootTable()))
        writer.overwrite(lines, {}, *row);
    else
        writer.add(lines);
}

void writeHeadFoot(const Paths& paths, HeadFootLines lines) {
    for (const std::filesystem::path& path : {paths.DataDbPath, paths.PrintDbPath}) {
        store::Database database(path);
        store::Transaction transaction(database);
        writeHeadFoot(database, lines);
        transaction.commit();
    }
}

} // namespace datastore
