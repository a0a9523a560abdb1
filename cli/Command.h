#pragma once

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace quorvane::cli {

// What scripts can rely on.
enum Exit : int { ok = 0, failure = 1, usage = 2, notSignedIn = 3, savedData = 4 };

// One subcommand of quorvanectl, as --help, the manual and the completion all read it. `run`
// gets the arguments from the command's own name on and returns the exit code.
struct Command {
    QString name;
    QString summary;     // the command list's line
    QString arguments;   // what follows the options in a synopsis: "[TEXT...]"
    QString description; // --help's and the manual's text
    QList<QCommandLineOption> (*options)();
    int (*run)(const QStringList &arguments);
    QStringList words = {}; // what the first argument may be, for the completion
};

// Parses a command's arguments with its own options and --help. No value: go on; a value:
// the command ends with that code (help shown, or a mistake reported as usage).
[[nodiscard]] std::optional<int> parse(QCommandLineParser &parser, const Command &command,
                                       const QStringList &arguments);

// The options every command that prints data has.
[[nodiscard]] QCommandLineOption jsonOption();

} // namespace quorvane::cli
