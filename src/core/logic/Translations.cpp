#include "Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace quorvane::Translations {

namespace {

QList<QPointer<QTranslator>> &installed()
{
    static QList<QPointer<QTranslator>> translators;
    return translators;
}

void add(QTranslator *translator)
{
    QCoreApplication::installTranslator(translator);
    installed().append(translator);
}

// The first folder with a translation for one of the locale's languages, most specific first.
QTranslator *load(const QLocale &locale)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    for (const QString &folder : folders()) {
        if (translator->load(locale, u"quorvane"_s, u"_"_s, folder))
            return translator.release();
    }
    return nullptr;
}

QTranslator *loadFile(const QString &name)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    for (const QString &folder : folders()) {
        if (translator->load(name, folder))
            return translator.release();
    }
    return nullptr;
}

} // namespace

QStringList folders()
{
    QStringList out;
    const QString own = qEnvironmentVariable("QUORVANE_TRANSLATIONS");
    if (!own.isEmpty())
        out << own;
    out << QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(u"../share/quorvane/translations"_s);
    out << u":/quorvane/translations"_s;
    return out;
}

QString requested()
{
    return qEnvironmentVariable("QUORVANE_LANGUAGE");
}

QString install(const QString &language)
{
    for (const QPointer<QTranslator> &old : std::as_const(installed())) {
        if (old) {
            QCoreApplication::removeTranslator(old);
            delete old;
        }
    }
    installed().clear();
    if (!QCoreApplication::instance())
        return {};

    // English is the source language; its file holds only the plural forms.
    if (QTranslator *english = loadFile(u"quorvane_en"_s))
        add(english);
    QTranslator *other = nullptr;
    if (language == "pseudo"_L1) {
        other = loadFile(u"quorvane_pseudo"_s);
    } else {
        const QLocale locale = language.isEmpty() ? QLocale::system() : QLocale(language);
        if (locale.language() != QLocale::English && locale.language() != QLocale::C)
            other = load(locale);
    }
    if (!other)
        return {};
    add(other);
    return other->filePath();
}

} // namespace quorvane::Translations
