#include "tray/BusStatus.h"

#include "Countdown.h"
#include "ISO.h"
#include "model/AppModel.h"

using namespace Qt::StringLiterals;

namespace quorvane::BusStatus {

DBusApplication::Status of(const AppModel &model)
{
    DBusApplication::Status status;
    status.signedIn = !model.needsSignIn();
    status.offline = model.offline();
    if (model.snapshot().savedAt > distantPast())
        status.savedAt = ISO::secondsString(model.snapshot().savedAt);
    status.todayCount = int(model.today().size());
    status.upcomingCount = int(model.upcomingCount());
    const std::optional<Booking> next = model.next();
    if (!next)
        return status;
    status.nextId = next->id;
    status.nextTitle = model.typeTitle(next->type);
    status.nextGuest = next->name;
    status.nextStart = ISO::secondsString(next->start);
    status.nextEnd = ISO::secondsString(next->end);
    if (const std::optional<QUrl> link = next->meetURL();
        link && (link->scheme() == "https"_L1 || link->scheme() == "http"_L1))
        status.nextJoinLink = link->toString();
    status.countdown = Countdown::shortText(next->start, model.now());
    return status;
}

void follow(const AppModel &model, DBusApplication &bus)
{
    const auto update = [&model, &bus] { bus.setStatus(of(model)); };
    // nextChanged comes with every new snapshot and every tick.
    for (auto signal : {&AppModel::nextChanged, &AppModel::offlineChanged, &AppModel::needsSignInChanged})
        QObject::connect(&model, signal, &bus, update);
    update();
}

} // namespace quorvane::BusStatus
