#pragma once

#include <QByteArray>
#include <vector>

namespace reports {

struct ZipEntry {
    const char* name;
    QByteArray bytes;
    bool stored = false; ///< without compression
};

/// Packs the entries into a zip archive, in order. Throws store::Error if its temporary file can't be written.
QByteArray zipped(const std::vector<ZipEntry>& entries);

} // namespace reports
