#include "Graphemes.h"

#include <QTextBoundaryFinder>

namespace quorvane::Graphemes {

QStringList split(const QString &text)
{
    QStringList clusters;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype from = 0;
    for (qsizetype to = finder.toNextBoundary(); to != -1; to = finder.toNextBoundary()) {
        clusters.append(text.mid(from, to - from).normalized(QString::NormalizationForm_C));
        from = to;
    }
    return clusters;
}

char32_t leadCodePoint(const QString &cluster)
{
    if (cluster.isEmpty())
        return 0;
    const QChar first = cluster.front();
    if (first.isHighSurrogate() && cluster.size() > 1 && cluster.at(1).isLowSurrogate())
        return QChar::surrogateToUcs4(first, cluster.at(1));
    return first.unicode();
}

} // namespace quorvane::Graphemes
