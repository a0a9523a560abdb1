#pragma once

#include <QString>
#include <QStringList>

namespace quorvane::cli {

// One subcommand of quorvanectl. `run` gets the arguments from the command's own name on
// and returns the exit code.
struct Command {
    QString name;
    QString summary;
    int (*run)(const QStringList &arguments);
};

} // namespace quorvane::cli
