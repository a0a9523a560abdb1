// Signing a device in through the browser: codes, approval, token, expiry.
#include "SandboxHarness.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace quorvane;
using namespace quorvane::sandbox;

namespace {

struct Codes {
    QString device;
    QString user;
    QString url;
};

Codes start(SandboxHarness &h, const QString &label = u"Test laptop"_s)
{
    const auto r = h.post(u"/auth/device/start"_s, {{u"label"_s, label}}, {});
    if (r.status != 200)
        qFatal("start answered %d", r.status);
    const QJsonObject o = r.json();
    return {o.value(u"device_code"_s).toString(), o.value(u"user_code"_s).toString(),
            o.value(u"verification_uri_complete"_s).toString()};
}

SandboxHarness::Response poll(SandboxHarness &h, const QString &deviceCode)
{
    return h.post(u"/auth/device/poll"_s, {{u"device_code"_s, deviceCode}}, {});
}

} // namespace

class TestSandboxDeviceFlow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void approvedInTheBrowserGivesAWorkingToken()
    {
        SandboxHarness h;
        QVERIFY(h.start());
        const Codes c = start(h, u"<b>Kim's</b> laptop"_s);
        QVERIFY(QRegularExpression(u"^[A-Z]{4}-[0-9]{4}$"_s).match(c.user).hasMatch());
        QCOMPARE(c.url, h.base() + u"/device?code="_s + c.user);
        QCOMPARE(poll(h, c.device).status, 428);

        const auto page = h.get(u"/device?code="_s + c.user, {});
        QCOMPARE(page.status, 200);
        QVERIFY(page.body.contains(c.user.toUtf8()));
        QVERIFY(page.body.contains("&lt;b&gt;Kim&#39;s&lt;/b&gt; laptop"));
        QCOMPARE(h.postForm(u"/device"_s, {{u"code"_s, c.user}}).status, 200);

        const auto granted = poll(h, c.device);
        QCOMPARE(granted.status, 200);
        const QByteArray token = granted.json().value(u"access_token"_s).toString().toUtf8();
        QVERIFY(!token.isEmpty());
        QCOMPARE(h.get(u"/sync/me"_s, token).status, 200);
        // The grant is spent once its token is collected.
        QCOMPARE(poll(h, c.device).json().value(u"error"_s).toString(), u"invalid_grant"_s);
    }

    // A code lives ten minutes: then it can be neither collected nor approved.
    void codesExpireAfterTenMinutes()
    {
        SandboxHarness h(SandboxHarness::config(false));
        QVERIFY(h.start());
        const Codes c = start(h);
        h.advance(599);
        QCOMPARE(poll(h, c.device).json().value(u"error"_s).toString(), u"authorization_pending"_s);
        QCOMPARE(h.get(u"/device?code="_s + c.user, {}).status, 200);
        h.advance(1);
        const auto r = poll(h, c.device);
        QCOMPARE((std::pair{r.status, r.json().value(u"error"_s).toString()}), (std::pair{400, u"expired_token"_s}));
        QCOMPARE(h.get(u"/device?code="_s + c.user, {}).status, 404);
    }

    void unknownCodesAreRefused()
    {
        SandboxHarness h(SandboxHarness::config(false));
        QVERIFY(h.start());
        const auto r = poll(h, u"0123456789abcdef"_s);
        QCOMPARE((std::pair{r.status, r.json().value(u"error"_s).toString()}), (std::pair{400, u"invalid_grant"_s}));
        QCOMPARE(h.postForm(u"/device"_s, {{u"code"_s, u"ABCD-1234"_s}}).status, 404);
    }

    void autoApprovalWaitsItsSeconds()
    {
        SandboxConfig config = SandboxHarness::config();
        config.autoApproveSeconds = 5;
        SandboxHarness h(config);
        QVERIFY(h.start());
        const Codes c = start(h);
        h.advance(4);
        QCOMPARE(poll(h, c.device).status, 428);
        h.advance(1);
        const auto r = poll(h, c.device);
        QCOMPARE(r.status, 200);
        QCOMPARE(h.get(u"/sync/bookings"_s, r.json().value(u"access_token"_s).toString().toUtf8()).status, 200);
    }
};

QTEST_GUILESS_MAIN(TestSandboxDeviceFlow)
#include "tst_sandbox_device_flow.moc"
