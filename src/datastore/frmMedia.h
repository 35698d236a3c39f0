#pragma once

#include <QString>
#include <filesystem>
#include <functional>
#include <optional>

#include "screenkit/workplace.h"

/// The dialogs that backup, restore and transfer share.
namespace datastore {

/// Asks for a file of clients to write or to read. The dialog opens in the user's home folder, from where removable
/// media are one click away. Nothing if the user cancels.
std::optional<std::filesystem::path> askDestination(screenkit::Desk& desk, const QString& title, const QString& name);
std::optional<std::filesystem::path> askSource(screenkit::Desk& desk, const QString& title, const QString& suggested);

/// Repeats work on a removable medium as long as it fails and the user answers OK. False after Cancel.
bool untilMediumWorks(screenkit::Desk& desk, const QString& problem, const QString& title,
                      const std::function<void()>& work);

/// Copies a finished file of clients to the place chosen. False if the user gave up after a failure or cancelled; he
/// has been told. problem: what to say of a medium that does not work, in a first line.
bool writeToMedium(screenkit::Workplace& work, const std::filesystem::path& file,
                   const std::filesystem::path& destination, const QString& problem);

/// "User has cancelled the operation!"
void tellCancelled(screenkit::Desk& desk);

} // namespace datastore
