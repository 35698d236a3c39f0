#include "shell/recentclients.h"

#include <QUrl>

#include "screenkit/usersettings.h"

namespace shell {

namespace {
constexpr int most = 5;
constexpr int parts = 3; // of an entry: key, birth date, name
} // namespace

RecentClients::RecentClients(const std::filesystem::path& dataDbPath)
    : m_place("recentClients/" +
              QString::fromLatin1(QUrl::toPercentEncoding(QString::fromStdString(dataDbPath.string())))) {}

QList<RecentClient> RecentClients::list() const {
    QList<RecentClient> clients;
    for (const QString& line : screenkit::userSettings().value(m_place).toStringList()) {
        const QString name = line.section('\t', parts - 1);
        const RecentClient client{line.section('\t', 0, 0).toDouble(), name, line.section('\t', 1, 1).toDouble()};
        if (client.DCLNO > 0 && clients.size() < most) clients << client; // ignores invalid lines in the settings file
    }
    return clients;
}

void RecentClients::remember(const RecentClient& client) const {
    QList<RecentClient> clients = list();
    clients.removeIf([&](const RecentClient& each) { return each.DCLNO == client.DCLNO; });
    clients.prepend(client);
    write(clients.first(std::min<qsizetype>(most, clients.size())));
}

void RecentClients::forget(double DCLNO) const {
    QList<RecentClient> clients = list();
    clients.removeIf([&](const RecentClient& each) { return each.DCLNO == DCLNO; });
    write(clients);
}

void RecentClients::write(const QList<RecentClient>& clients) const {
    QStringList lines;
    for (const RecentClient& client : clients)
        lines << QString::number(client.DCLNO, 'g', 17) + '\t' + QString::number(client.birthDate, 'g', 17) + '\t' +
                     client.name;
    screenkit::userSettings().setValue(m_place, lines);
}

} // namespace shell
