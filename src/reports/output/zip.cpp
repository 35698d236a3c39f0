#include "reports/output/zip.h"

#include <minizip/zip.h>
#include <zlib.h>

#include <QFile>
#include <QTemporaryDir>

#include "store/error.h"

namespace reports {
namespace {

bool add(zipFile archive, const ZipEntry& entry) {
    zip_fileinfo info{};
    info.tmz_date = {0, 0, 0, 1, 0, 1980}; // the format's earliest date, so that the same report gives the same file
    const int method = entry.stored ? 0 : Z_DEFLATED;
    return zipOpenNewFileInZip(archive, entry.name, &info, nullptr, 0, nullptr, 0, nullptr, method,
                               Z_DEFAULT_COMPRESSION) == ZIP_OK &&
           zipWriteInFileInZip(archive, entry.bytes.constData(), static_cast<unsigned>(entry.bytes.size())) == ZIP_OK &&
           zipCloseFileInZip(archive) == ZIP_OK;
}

} // namespace

QByteArray zipped(const std::vector<ZipEntry>& entries) {
    // The library writes only to a named file; this private folder is removed at the end of the scope.
    const QTemporaryDir folder;
    const QString path = folder.filePath("archive.zip");
    zipFile archive = zipOpen64(QFile::encodeName(path).constData(), APPEND_STATUS_CREATE);
    bool whole = archive != nullptr;
    for (const ZipEntry& entry : entries)
        whole = whole && add(archive, entry);
    if (archive != nullptr) whole = zipClose(archive, nullptr) == ZIP_OK && whole;
    QFile file(path);
    if (!whole || !file.open(QIODevice::ReadOnly))
        throw store::Error(store::Number::deviceError, path.toStdString(), "A temporary file could not be written.",
                           "Free some space on the disk that holds temporary files.");
    return file.readAll();
}

} // namespace reports
