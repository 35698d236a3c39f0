#include "shell/clientfiles.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>
#include <string_view>

#include "base/day.h"
#include "base/numberformat.h"
#include "base/text.h"
#include "clientfile/frmTicks.h"
#include "datastore/filesbeside.h"
#include "store/error.h"
#include "store/files.h"

namespace shell {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view usage = "Use --client-file KEY --to FILE.pdf, or --all --to FOLDER.";

/// "FILE: reason advice number" as one line.
std::string oneLine(std::string message) {
    if (const auto behindFile = message.find('\n'); behindFile != std::string::npos)
        message.replace(behindFile, 1, ": ");
    std::replace(message.begin(), message.end(), '\n', ' ');
    return message;
}

double keyIn(std::string_view word) {
    double key = 0;
    const auto [end, fault] = std::from_chars(word.data(), word.data() + word.size(), key);
    if (fault != std::errc() || end != word.data() + word.size() || !(key > 0))
        throw std::invalid_argument("\"" + std::string(word) + "\" is no client's key. It is a number above 0.");
    return key;
}

std::optional<reports::Format> formatOf(const fs::path& file) {
    return reports::formatOf(QString::fromStdString(file.string()));
}

/// Throws for a place that can't take what is ordered, before any work is done.
void requirePlace(const ClientFileOrder& order) {
    std::error_code ignored;
    if (!order.key) {
        if (!fs::is_directory(order.to, ignored))
            throw store::Error(store::Number::badPath, order.to.string(), "There is no such folder.",
                               "Create the folder first, or name another one.");
    } else if (const auto format = formatOf(order.to);
               format != reports::Format::pdf && format != reports::Format::odt) {
        throw store::Error(store::Number::badPath, order.to.string(), "The file's name must end in .pdf or .odt.",
                           "Name the file {name}.pdf, for example.");
    }
}

/// Makes the files one by one from one reading of the practice's settings.
class FileWriter {
public:
    FileWriter(const ClientFileOrder& order, const fs::path& programFolder, const QDate& today)
        : m_order(order), m_files(programFolder), m_today(*base::dayNumber(today.year(), today.month(), today.day())) {}

    std::vector<datastore::ClientLine> clients() { return m_files.clients(); }

    void write(double key) {
        auto source = std::make_shared<clientfile::Source>();
        source->record = m_files.read(key);
        source->paths = m_files.paths();
        source->today = m_today;
        const fs::path file = m_order.key ? m_order.to : m_order.to / nameOf(*source, key);
        const reports::Report report = reports::makeDocument(clientfile::planOf(source, m_ticks));
        store::writeFile(file, reports::exported(report, formatOf(file).value()).toStdString());
    }

private:
    static std::string nameOf(const clientfile::Source& source, double key) {
        const QString title = QString("%1 (%2)").arg(clientfile::fileTitleOf(source.today)).arg(key, 0, 'f', 0);
        return reports::proposedFileName(clientfile::fileClientOf(source.record), title, ".pdf").toStdString();
    }

    const ClientFileOrder& m_order;
    datastore::FilesBeside m_files;
    clientfile::Ticks m_ticks;
    double m_today;
};

} // namespace

std::optional<ClientFileOrder> clientFileOrder(std::span<const char* const> words) {
    std::optional<double> key;
    std::optional<fs::path> to;
    bool isAll = false;
    bool isOrder = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string_view word = words[i];
        if (word == "--all") {
            isAll = isOrder = true;
        } else if (word == "--client-file" || word == "--to") {
            isOrder = true;
            const bool hasValue = i + 1 < words.size() && !std::string_view(words[i + 1]).starts_with("--");
            if (!hasValue && word == "--client-file") continue; // --client-file --all
            if (!hasValue) throw std::invalid_argument("--to names no file or folder. " + std::string(usage));
            ++i;
            if (word == "--to")
                to = words[i];
            else
                key = keyIn(words[i]);
        } else if (isOrder) {
            throw std::invalid_argument("\"" + std::string(word) + "\" is not known. " + std::string(usage));
        }
    }
    if (!isOrder) return {};
    if (isAll == key.has_value()) throw std::invalid_argument("One client or all? " + std::string(usage));
    if (!to) throw std::invalid_argument("Where to is missing. " + std::string(usage));
    return ClientFileOrder{key, fs::absolute(*to)};
}

int writeClientFiles(const ClientFileOrder& order, const fs::path& programFolder, const QDate& today,
                     const TellFailure& tell) {
    int written = 0;
    const auto attempt = [&](const std::string& whose, const std::function<void()>& action) {
        try {
            action();
        } catch (const store::Error& error) {
            tell(whose + oneLine(error.message()));
        } catch (const std::exception& error) { // no memory, for example: the next client may do with less
            tell(whose + oneLine(error.what()));
        }
    };
    attempt("", [&] {
        requirePlace(order);
        FileWriter writer(order, programFolder, today);
        const auto writeOne = [&](double key, const std::string& name) {
            attempt("client " + base::formatNumber(key, "0") + name + ": ", [&] {
                writer.write(key);
                ++written;
            });
        };
        if (order.key) return writeOne(*order.key, "");
        for (const datastore::ClientLine& client : writer.clients())
            writeOne(client.DCLNO, " (" + base::trim(client.Name) + ")");
    });
    return written;
}

} // namespace shell
