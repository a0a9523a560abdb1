#include "Pseudo.h"

#include <QRegularExpression>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace quorvane::Pseudo {

namespace {

const QString plain = u"AaCcDdEeIiNnOoSsUuYyZz"_s;
const QString accented = u"ÅåÇçÐðÉéÎîÑñÖöŠšÜüÝýŽž"_s;

// What must reach the translation untouched: placeholders, tags, entities, a mnemonic with
// its letter, line breaks.
const QRegularExpression kept(uR"(%L?\d+|%n|<[^>]*>|&[a-zA-Z#0-9]+;|&.|\n)"_s);

QString accent(QStringView part)
{
    QString out;
    out.reserve(part.size());
    for (const QChar ch : part) {
        const qsizetype at = plain.indexOf(ch);
        out += at < 0 ? ch : accented.at(at);
    }
    return out;
}

} // namespace

QString text(const QString &source)
{
    if (source.isEmpty())
        return source;
    QString body;
    qsizetype from = 0;
    for (auto it = kept.globalMatch(source); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        body += accent(QStringView(source).mid(from, m.capturedStart() - from)) + m.captured();
        from = m.capturedEnd();
    }
    body += accent(QStringView(source).mid(from));
    // The brackets count towards the third.
    const qsizetype padding = std::max<qsizetype>(1, (source.size() + 2) / 3 - 2);
    return u'[' + body + QString(padding, u'·') + u']';
}

bool translate(QIODevice &ts, QIODevice &out, QString *error)
{
    QXmlStreamReader in(&ts);
    QXmlStreamWriter w(&out);
    w.setAutoFormatting(true);
    w.writeStartDocument();
    w.writeDTD(u"<!DOCTYPE TS>"_s);
    bool numerus = false;
    QString source;
    int messages = 0;
    while (!in.atEnd()) {
        in.readNext();
        if (in.isStartElement()) {
            const QStringView name = in.name();
            if (name == "TS"_L1) {
                w.writeStartElement(u"TS"_s);
                w.writeAttribute(u"version"_s, u"2.1"_s);
                w.writeAttribute(u"language"_s, u"en"_s);
                w.writeAttribute(u"sourcelanguage"_s, u"en"_s);
            } else if (name == "context"_L1) {
                w.writeStartElement(u"context"_s);
            } else if (name == "name"_L1) {
                w.writeTextElement(u"name"_s, in.readElementText());
            } else if (name == "message"_L1) {
                numerus = in.attributes().value(u"numerus"_s) == "yes"_L1;
                w.writeStartElement(u"message"_s);
                if (numerus)
                    w.writeAttribute(u"numerus"_s, u"yes"_s);
                ++messages;
            } else if (name == "source"_L1 || name == "comment"_L1 || name == "extracomment"_L1) {
                const QString value = in.readElementText();
                if (name == "source"_L1)
                    source = value;
                w.writeTextElement(name.toString(), value);
            } else if (name == "translation"_L1) {
                // A plural text's English forms ("%n item", "%n items") make its pseudo forms.
                QStringList forms;
                while (numerus && in.readNextStartElement())
                    forms << in.readElementText();
                if (!numerus)
                    in.skipCurrentElement();
                forms.removeAll(QString());
                w.writeStartElement(u"translation"_s);
                if (numerus) {
                    for (int form = 0; form < 2; ++form)
                        w.writeTextElement(u"numerusform"_s, text(forms.value(form, forms.value(0, source))));
                } else {
                    w.writeCharacters(text(source));
                }
                w.writeEndElement();
            } else {
                in.skipCurrentElement();
            }
        } else if (in.isEndElement()) {
            const QStringView name = in.name();
            if (name == "TS"_L1 || name == "context"_L1 || name == "message"_L1)
                w.writeEndElement();
        }
    }
    w.writeEndDocument();
    if (in.hasError() || messages == 0) {
        if (error)
            *error = in.hasError() ? in.errorString() : u"no messages"_s;
        return false;
    }
    return true;
}

} // namespace quorvane::Pseudo
