#pragma once

#include <QByteArray>
#include <vector>

namespace reports {

struct ZipEntry {
    const char* name;
    QByteArray bytes;
    bool stored = false; ///< as it is, without compression
};

/// The entries as one zip archive, in their order. Throws store::Error if its scratch file can't be written.
QByteArray zipped(const std::vector<ZipEntry>& entries);

} // namespace reports
