#include <Desktop/DesktopUserNotifications.h>

#include <Support/QtTest.h>
#include <Testing/TemporaryDirectory.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>
#include <QTimer>

namespace velmar {
namespace {

/// Runs a session bus with a fake notification service.
class UserNotificationsTest : public QtTest<>, public QDBusVirtualObject {
protected:
    static void SetUpTestSuite() {
        // Set first, because the toolkit reads it only once.
        qputenv("DBUS_SESSION_BUS_ADDRESS", address_.c_str());
        QtTest<>::SetUpTestSuite();
    }
    ~UserNotificationsTest() override { stopBus(); }

    void startBus(const std::string &limits = "") {
        const auto file = directory_.write(
            "bus.conf", "<busconfig><listen>" + address_ +
                            "</listen><policy context='default'><allow own='*'/><allow receive_sender='*'/>"
                            "<allow send_destination='*'/></policy>" +
                            limits + "</busconfig>");
        bus_.start("dbus-daemon", {"--nofork", "--print-address", "--config-file", file.c_str()});
        ASSERT_TRUE(bus_.waitForReadyRead());
    }
    void stopBus() {
        bus_.kill();
        bus_.waitForFinished();
        QDBusConnection::disconnectFromBus("service");
    }
    void startService() {
        auto service = QDBusConnection::connectToBus(QString::fromStdString(address_), "service");
        ASSERT_TRUE(service.registerVirtualObject("/org/freedesktop/Notifications", this));
        ASSERT_TRUE(service.registerService("org.freedesktop.Notifications"));
    }
    std::string show(DesktopUserNotifications &notifications) {
        QEventLoop loop;
        UserNotificationOutcome outcome{.isShown = false, .problem = "no completion"};
        notifications.add({.title = "A", .body = "", .soundName = "bell", .actions = {{"yes", "Yes"}}},
                          [&](const UserNotificationOutcome &told) {
                              outcome = told;
                              loop.quit();
                          });
        QTimer::singleShot(20'000, &loop, &QEventLoop::quit);
        loop.exec();
        return (outcome.isShown ? "shown " : "") + outcome.problem;
    }

    [[nodiscard]] QString introspect(const QString & /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override {
        if (isSilent_) {
            message.setDelayedReply(true);
        } else if (!error_.isEmpty()) {
            connection.send(message.createErrorReply("org.example.Error", error_));
        } else {
            connection.send(message.createReply(message.member() == "Notify" ? QVariant(1U) : QStringList()));
        }
        return true;
    }

    static inline const TemporaryDirectory directory_;
    static inline const std::string address_ = "unix:path=" + directory_.path("bus");
    QProcess bus_;
    bool isSilent_ = false;
    QString error_;
};

TEST_F(UserNotificationsTest, SayWhatIsMissingAndAreShownAsSoonAsTheyCanBe) {
    DesktopUserNotifications notifications(std::chrono::milliseconds(100));
    const auto expect = [&](const std::string &reason) {
        const std::string outcome = show(notifications);
        EXPECT_TRUE(outcome.starts_with("The notification can't be shown: " + reason)) << outcome;
    };
    expect("the session bus cannot be reached: Failed to connect");
    startBus("<limit name='max_connections_per_user'>0</limit>");
    expect("the session bus cannot be reached: The maximum number");
    stopBus();
    startBus();
    expect("the desktop has no notification service.");
    startService();
    error_ = "too many.";
    expect("too many.");
    isSilent_ = true;
    expect("the notification service does not answer.");
    stopBus();
    expect("");
    isSilent_ = false;
    error_.clear();
    startBus();
    startService();
    EXPECT_EQ(show(notifications),
              "shown The notification is shown without its buttons: the notification service has none. "
              "The notification is silent: the notification service plays no sounds.");
}

} // namespace
} // namespace velmar
