#pragma once

#include <QList>
#include <QString>
#include <filesystem>

namespace shell {

/// A client as this user had him open last.
struct RecentClient {
    double DCLNO = 0;
    QString name;
    double birthDate = 0;

    bool operator==(const RecentClient&) const = default;
};

/// The clients of one client database that this user opened last, the latest first, five at most. They are remembered
/// from one run to the next in the user's own settings; the database itself knows nothing of it.
///
/// The keys are those of a moment ago: whoever opens one makes sure first that the row is still the same client's.
class RecentClients {
public:
    explicit RecentClients(const std::filesystem::path& dataDbPath);

    QList<RecentClient> list() const;
    /// Puts a client at the top, under the name that he has now.
    void remember(const RecentClient& client) const;
    void forget(double DCLNO) const;

private:
    void write(const QList<RecentClient>& clients) const;

    QString m_place;
};

} // namespace shell
