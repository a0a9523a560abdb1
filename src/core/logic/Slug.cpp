#include "Slug.h"

#include "Graphemes.h"

namespace quorvane::Slug {

namespace {

// A combining accent travels with its letter, so "é" in either spelling stays whole.
bool isKept(const QString &cluster)
{
    return QChar::isLetterOrNumber(Graphemes::leadCodePoint(cluster));
}

} // namespace

QString make(const QString &title)
{
    QStringList slug;
    for (const QString &cluster : Graphemes::split(title.toLower())) {
        if (isKept(cluster))
            slug.append(cluster);
        else if (!slug.isEmpty() && slug.last() != u"-")
            slug.append(QStringLiteral("-"));
    }
    if (!slug.isEmpty() && slug.last() == u"-")
        slug.removeLast();
    if (slug.isEmpty())
        return QStringLiteral("meeting");
    // The cut comes last, so it may leave a final "-".
    return slug.mid(0, maxLength).join(QString());
}

QString unique(const QString &title, const QSet<QString> &existing)
{
    const QString base = make(title);
    QString candidate = base;
    for (int n = 2; existing.contains(candidate); ++n)
        candidate = base + u'-' + QString::number(n);
    return candidate;
}

} // namespace quorvane::Slug
