// Draws the coverage of each icon given, at each side of IconMasks::sides, into a C++ source
// the app is built with: quorvane-make-icon-masks OUTPUT.cpp ICON.svg...
#include "components/IconMask.h"
#include "components/IconMasks.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <cstdio>

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() < 3) {
        std::fprintf(stderr, "usage: quorvane-make-icon-masks OUTPUT.cpp ICON.svg...\n");
        return 2;
    }
    QStringList icons = arguments.mid(2);
    std::sort(icons.begin(), icons.end(),
              [](const QString &a, const QString &b) { return QFileInfo(a).baseName() < QFileInfo(b).baseName(); });

    QByteArray table;
    QByteArray data;
    unsigned count = 0;
    for (const QString &icon : std::as_const(icons)) {
        const QByteArray stem = QFileInfo(icon).baseName().toLatin1();
        for (const int side : quorvane::IconMasks::sides) {
            const QByteArray coverage = quorvane::IconMask::draw(icon, QSize(side, side));
            if (coverage.isEmpty()) {
                std::fprintf(stderr, "quorvane-make-icon-masks: %s does not draw\n", qPrintable(icon));
                return 1;
            }
            table +=
                "    {\"" + stem + "\", " + QByteArray::number(side) + ", " + QByteArray::number(data.size()) + "},\n";
            data += coverage;
            ++count;
        }
    }

    QByteArray source = "// Written by quorvane-make-icon-masks from the bundled icons.\n"
                        "#include \"components/IconMasks.h\"\n\n"
                        "namespace quorvane::IconMasks::data {\n\n"
                        "const Entry entries[] = {\n"
                        + table + "};\nconst unsigned entryCount = " + QByteArray::number(count) + ";\n";
    // Octal escapes, 32 bytes a line; a literal this long is far cheaper to compile than an
    // initialiser list.
    source += "const char coverage[] =\n";
    for (qsizetype at = 0; at < data.size(); at += 32) {
        source += "    \"";
        for (qsizetype i = at; i < std::min(data.size(), at + 32); ++i)
            source += '\\' + QByteArray::number(uchar(data.at(i)), 8);
        source += "\"\n";
    }
    source += "    ;\n\n} // namespace quorvane::IconMasks::data\n";

    QFile out(arguments.at(1));
    if (!out.open(QIODevice::WriteOnly) || out.write(source) != source.size()) {
        std::fprintf(stderr, "quorvane-make-icon-masks: cannot write %s\n", qPrintable(arguments.at(1)));
        return 1;
    }
    return 0;
}
