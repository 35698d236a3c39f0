#pragma once

#include <QList>
#include <QString>
#include <filesystem>

namespace shell {

/// A client as it was when this user opened it last.
struct RecentClient {
    double DCLNO = 0;
    QString name;
    double birthDate = 0;

    bool operator==(const RecentClient&) const = default;
};

/// The five clients of one client database that this user opened last, newest first. They are stored in the user's own
/// settings, not in the database.
///
/// The keys may be out of date: before opening a client, check that the row still belongs to it.
class RecentClients {
public:
    explicit RecentClients(const std::filesystem::path& dataDbPath);

    QList<RecentClient> list() const;
    /// Puts a client at the top, under its current name.
    void remember(const RecentClient& client) const;
    void forget(double DCLNO) const;

private:
    void write(const QList<RecentClient>& clients) const;

    QString m_place;
};

} // namespace shell
