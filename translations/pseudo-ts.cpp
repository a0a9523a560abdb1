// quorvane-pseudo-ts IN.ts OUT.ts: the pseudo translation of the program's texts, for looking
// at the interface with longer texts in every language's place.
#include "Pseudo.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() != 3) {
        std::fprintf(stderr, "usage: quorvane-pseudo-ts IN.ts OUT.ts\n");
        return 2;
    }
    QFile in(args.at(1));
    QSaveFile out(args.at(2));
    if (!in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "quorvane-pseudo-ts: can't open %s or %s\n", qPrintable(args.at(1)),
                     qPrintable(args.at(2)));
        return 1;
    }
    QString error;
    if (!quorvane::Pseudo::translate(in, out, &error) || !out.commit()) {
        std::fprintf(stderr, "quorvane-pseudo-ts: %s: %s\n", qPrintable(args.at(1)), qPrintable(error));
        return 1;
    }
    return 0;
}
