#include "datastore/filesbeside.h"

#include <system_error>

#include "datastore/funds.h"
#include "datastore/load.h"
#include "datastore/shipped.h"
#include "datastore/upgrade.h"
#include "store/error.h"
#include "store/filecopy.h"

namespace datastore {

namespace fs = std::filesystem;

namespace {

void requireKnownVersion(store::Database& clients) {
    if (readVersion(clients) > currentVersion)
        throw store::Error(store::Number::invalidFileFormat, clients.path().string(),
                           "This file of clients is of a newer version of Marlowbeck.",
                           "Install the newest version of Marlowbeck on this computer, then try again.");
}

std::string replaced(std::string text, const std::string& part, const std::string& by) {
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size()))
        text.replace(at, part.size(), by);
    return text;
}

} // namespace

/// The user does not know the temporary folder: an error about a copy is one about its original.
template <class Work>
auto FilesBeside::namingOriginals(Work work) const {
    try {
        return work();
    } catch (const store::Error& error) {
        for (const Copy& copy : m_copies) {
            if (error.file() != copy.file.string()) continue;
            const std::string folder = copy.file.parent_path().string(), known = copy.original.parent_path().string();
            throw store::Error(error.kind(), copy.original.string(), error.why(),
                               replaced(error.advice(), folder, known));
        }
        throw;
    }
}

void FilesBeside::useCopyUnless(const std::function<bool(store::Database&)>& isUsable, fs::path& file) {
    try {
        store::Database original(file);
        const store::Transaction oneView(original, store::Access::read); // nobody writes while it is copied
        if (!isUsable(original)) useCopy(file);
    } catch (const store::Error& error) {
        if (!error.is(store::Number::readOnly)) throw;
        useCopy(file); // opening the copy undoes what a crashed writer left
    }
}

/// Between two reads another program may crash while it writes.
template <class Read>
auto FilesBeside::reading(Read read) {
    return namingOriginals([&] {
        try {
            return read();
        } catch (const store::Error& error) {
            if (!error.is(store::Number::readOnly) || error.file() != m_paths.DataDbPath.string()) throw;
            useCopy(m_paths.DataDbPath);
            return read();
        }
    });
}

FilesBeside::FilesBeside(const fs::path& programFolder) : m_paths(lookUpPaths(programFolder)) {
    namingOriginals([this] { prepare(); });
}

void FilesBeside::prepare() {
    for (const fs::path& file :
         {m_paths.DataDbPath, m_paths.DefaultDbPath, m_paths.PrintDbPath, m_paths.UnitsDbPath, m_paths.DiaryDbPath})
        m_opened.emplace_back(file, store::Opening::onlyRead);
    useCopyUnless(hasAllSettings, m_paths.DefaultDbPath);
    useCopyUnless([](store::Database& clients) { return readVersion(clients) >= currentVersion; }, m_paths.DataDbPath);
    m_print.emplace(m_paths);
    m_paths.PrintDbPath = m_print->path();
    store::Database settings(m_paths.DefaultDbPath);
    completeSettings(settings); // which finds something to do in a copy only, like the upgrade
    store::Database clients(m_paths.DataDbPath);
    requireKnownVersion(clients);
    m_paths.UpDateDBValue = bringUpToDate(clients, m_paths);
}

void FilesBeside::useCopy(fs::path& file) {
    const fs::path folder = m_folder.path() / std::to_string(m_copies.size());
    std::error_code ignored; // the copying tells why it can't
    fs::create_directory(folder, ignored);
    const fs::path copy = folder / file.filename();
    store::copyDatabase(file, copy);
    m_opened.emplace_back(copy, store::Opening::temporary);
    m_copies.push_back({file, copy});
    file = copy;
}

std::vector<ClientLine> FilesBeside::clients() {
    return reading([this] { return readClientList(m_paths.DataDbPath); });
}

assessment::Assessment FilesBeside::read(double key) {
    return reading([&] {
        assessment::Assessment record;
        load(record, m_paths, key);
        refreshFunds(record, m_paths.DefaultDbPath);
        return record;
    });
}

} // namespace datastore
