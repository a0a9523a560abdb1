#include "ShareCommand.h"

#include "ClipboardTool.h"
#include "Output.h"
#include "Saved.h"
#include "linux/LibsecretStore.h"
#include "model/Preferences.h"
#include "polls/Polls.h"
#include "share/QuickShare.h"

#include "APIError.h"
#include "ISO.h"
#include "JSON.h"
#include "Keychain.h"
#include "NetworkTransport.h"
#include "QuorvaneAPI.h"

#include <QCoroTask>
#include <QJsonArray>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QSettings>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace quorvane::cli::ShareCommand {

namespace {

struct Request {
    QString type; // empty: the default type
    int best = QuickShare::maxPicks;
    QString zone;
    bool copy = false;
    bool json = false;
};

struct Offer {
    QList<Slot> picked;
    QString message;
    QString link;
};

// A fetch that worked but leaves nothing to share.
struct Refusal {
    QString message;
};

// The fetch's end, caught inside it: exceptions don't cross QCoro::waitFor.
struct Outcome {
    std::optional<Offer> offer;
    std::optional<APIError> error;
    QString refusal;
};

std::optional<EventType> chooseType(const HostSettings &settings, const QString &wanted)
{
    QList<EventType> active;
    for (const EventType &type : settings.eventTypes) {
        if (type.isActive)
            active.append(type);
    }
    const QString slug = wanted.isEmpty() ? Polls::defaultType(active) : wanted;
    for (const EventType &type : std::as_const(active)) {
        if (type.slug == slug)
            return type;
    }
    return std::nullopt;
}

QString activeSlugs(const HostSettings &settings)
{
    QStringList slugs;
    for (const EventType &type : settings.eventTypes) {
        if (type.isActive)
            slugs.append(type.slug);
    }
    return slugs.isEmpty() ? u"none"_s : slugs.join(u", "_s);
}

QCoro::Task<Offer> fetch(QuorvaneAPI api, Request request)
{
    const HostSettings settings = co_await api.settings();
    const std::optional<EventType> type = chooseType(settings, request.type);
    if (!type) {
        throw Refusal{request.type.isEmpty()
                          ? u"there is no active event type to share"_s
                          : u"no active event type \"%1\" (active: %2)"_s.arg(request.type, activeSlugs(settings))};
    }
    const SlotList answer = co_await api.slots(type->slug, QuickShare::daysAsked, Saved::zone());
    if (answer.slots.isEmpty())
        throw Refusal{u"No open times"_s};
    Offer offer;
    const QList<Slot> best = QuickShare::suggestBest(answer.slots, request.zone);
    offer.picked = best.first(std::min<qsizetype>(best.size(), request.best));
    const QString typeLink = api.base.toString() + u'/' + settings.handle + u'/' + type->slug;
    offer.link = QuickShare::link(answer.link, typeLink);
    offer.message = QuickShare::text(offer.picked, type, offer.link, request.zone, Saved::locale(),
                                     QDateTime::currentDateTimeUtc());
    co_return offer;
}

QCoro::Task<Outcome> attempt(QuorvaneAPI api, Request request)
{
    Outcome outcome;
    try {
        outcome.offer = co_await fetch(std::move(api), std::move(request));
    } catch (const APIError &error) {
        outcome.error = error;
    } catch (const Refusal &refusal) {
        outcome.refusal = refusal.message;
    } catch (...) {
        outcome.error = APIError::offline();
    }
    co_return outcome;
}

QJsonObject json(const Offer &offer)
{
    QJsonArray picked;
    for (const Slot &slot : offer.picked) {
        picked.append(QJsonObject{{u"start"_s, ISO::secondsString(slot.start)},
                                  {u"end"_s, ISO::secondsString(slot.end)},
                                  {u"score"_s, slot.score}});
    }
    return {{u"message"_s, offer.message}, {u"link"_s, offer.link}, {u"slots"_s, picked}};
}

QList<QCommandLineOption> options()
{
    return {
        QCommandLineOption(u"type"_s, u"The event type's slug; by default the 30-minute one, else the first."_s,
                           u"SLUG"_s),
        QCommandLineOption(u"best"_s, u"How many times to offer, on different days (1 to 3; 3 by default)."_s, u"N"_s),
        QCommandLineOption(u"zone"_s, u"Show the times in this IANA time zone; this computer's by default."_s,
                           u"ZONE"_s),
        QCommandLineOption(u"copy"_s, u"Also put the message on the clipboard (through wl-copy, xclip or xsel)."_s),
        jsonOption()};
}

// No value: the request stands; otherwise the usage mistake is reported.
std::optional<Request> request(const QCommandLineParser &parser)
{
    Request r;
    r.type = parser.value(u"type"_s);
    r.zone = parser.isSet(u"zone"_s) ? parser.value(u"zone"_s) : Saved::zone();
    r.copy = parser.isSet(u"copy"_s);
    r.json = parser.isSet(u"json"_s);
    if (parser.isSet(u"best"_s)) {
        bool number = false;
        r.best = parser.value(u"best"_s).toInt(&number);
        if (!number || r.best < 1 || r.best > QuickShare::maxPicks) {
            Output::error(u"quorvanectl share: --best takes a number from 1 to %1"_s.arg(QuickShare::maxPicks));
            return std::nullopt;
        }
    }
    if (!QTimeZone(r.zone.toUtf8()).isValid()) {
        Output::error(u"quorvanectl share: unknown time zone \"%1\", such as Europe/Berlin"_s.arg(r.zone));
        return std::nullopt;
    }
    return r;
}

int run(const QStringList &arguments)
{
    QCommandLineParser parser;
    if (const std::optional<int> done = parse(parser, command(), arguments))
        return *done;
    const std::optional<Request> r = request(parser);
    if (!r)
        return usage;

    LibsecretStore secrets;
    const Keychain keychain(secrets);
    if (!keychain.token()) {
        Output::error(u"quorvanectl share: "_s + APIError::notSignedIn().errorDescription());
        return notSignedIn;
    }
    QSettings settings(QSettings::IniFormat, QSettings::UserScope, u"Quorvane"_s, u"Quorvane"_s);
    const Preferences preferences(settings);
    QNetworkAccessManager network;
    const QuorvaneAPI api{preferences.baseURL(),
                          [keychain] { return keychain.token(); },
                          std::make_shared<NetworkTransport>(network),
                          {}};
    const Outcome outcome = QCoro::waitFor(attempt(api, *r));
    if (const std::optional<APIError> &error = outcome.error) {
        Output::error(u"quorvanectl share: "_s + error->errorDescription());
        const bool signedOut =
            error->kind() == APIError::Kind::notSignedIn || error->kind() == APIError::Kind::unauthorized;
        return signedOut ? notSignedIn : failure;
    }
    if (!outcome.offer) {
        Output::error(u"quorvanectl share: "_s + outcome.refusal);
        return failure;
    }
    const Offer &offer = *outcome.offer;
    Output::line(r->json ? QString::fromUtf8(JSON::encode(QJsonValue(json(offer)))) : offer.message);
    if (r->copy) {
        if (const QString failed = ClipboardTool::copy(offer.message); !failed.isEmpty()) {
            Output::error(u"quorvanectl share: couldn't copy: "_s + failed);
            return failure;
        }
    }
    return ok;
}

} // namespace

const Command &command()
{
    static const Command c{u"share"_s,
                           u"Print a message offering your best open times."_s,
                           {},
                           u"Fetches the open times of an event type for the next 14 days with the account of "
                           "Quorvane on this computer, picks the best ones on different days as \"Suggest Best 3\" "
                           "does, and prints the message that offers them with the booking link."_s,
                           &options,
                           &run};
    return c;
}

} // namespace quorvane::cli::ShareCommand
