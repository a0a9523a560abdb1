// The polls screen: cards with votes and a tie, a poll nobody voted on, no polls at all, the
// new-poll sheet and the delete confirmation.
#include "SceneTable.h"
#include "Stage.h"

#include <QCoroTask>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::test;

namespace {

// The server's polls changed, and the model has refreshed.
void editPolls(Stage &stage, const std::function<void(QList<Poll> &)> &edit)
{
    edit(stage.app().transport().data.polls);
    QCoro::waitFor(stage.app().model().refresh());
}

} // namespace

QUORVANE_SCENES(polls)
{
    // The design review's two times tie at two votes each; the planning sync has a leader.
    Scene votes = sectionScene(u"polls-votes-and-tie"_s, AppSection::polls, [](Stage &stage) {
        editPolls(stage, [](QList<Poll> &list) { list[1].options[1].votes = 2; });
    });
    Scene noVotes = sectionScene(u"polls-no-votes"_s, AppSection::polls, [](Stage &stage) {
        editPolls(stage, [](QList<Poll> &list) {
            for (Poll::Option &option : list[0].options)
                option.votes = 0;
            list[0].voters.clear();
        });
    });
    Scene empty = sectionScene(u"polls-empty"_s, AppSection::polls);
    empty.fixture.emptyData = true;
    Scene sheet = sectionScene(u"polls-new-poll-sheet"_s, AppSection::polls,
                               [](Stage &stage) { stage.app().model().setShowNewPoll(true); });
    Scene confirm = sectionScene(u"polls-delete-dialog"_s, AppSection::polls, [](Stage &stage) {
        QObject *view = stage.find(u"pollCards"_s);
        QObject *button = stage.find(u"deletePoll"_s);
        if (!view || !button)
            return stage.problem(u"no poll card"_s);
        QMetaObject::invokeMethod(button, "clicked");
    });
    return {votes, noVotes, empty, sheet, confirm};
}
