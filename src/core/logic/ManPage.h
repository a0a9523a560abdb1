#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>

// A program's manual page in roff, written from the same options its --help lists, so the two
// can't tell different stories.
namespace quorvane::ManPage {

// One way to call the program: a subcommand (or none), its arguments and options.
struct Usage {
    QString command;   // "next"; empty for the program itself
    QString arguments; // after the options: "main|share|palette|settings", "[TEXT...]"
    QString description;
    QList<QCommandLineOption> options; // those hidden from help are left out here too
};

struct Section {
    QString title; // "EXIT STATUS"
    QString text;  // paragraphs apart by blank lines; a line "  TERM  text" is a tagged paragraph
};

struct Page {
    QString name;    // "quorvanectl"
    QString summary; // the one-line "what is" entry
    QString version; // "Quorvane 2.0" when left empty
    QString description;
    QList<Usage> usages; // one without a command: OPTIONS; several: COMMANDS
    QList<Section> sections;
};

[[nodiscard]] QString roff(const Page &page);

// The option that prints the page, "--man", kept out of --help.
[[nodiscard]] QCommandLineOption option();

// "[--days N] [--json]": how the options read in a synopsis.
[[nodiscard]] QString optionSynopsis(const QList<QCommandLineOption> &options);

} // namespace quorvane::ManPage
