#include <gmock/gmock.h>

#include <QProcess>

namespace {

struct Answer {
    int exit;
    QByteArray output;
    bool operator==(const Answer&) const = default;
};

Answer ask(const QStringList& arguments) {
    QProcess helper;
    helper.start(SCRIVEL_ASKPASS_DRIVER, arguments);
    EXPECT_TRUE(helper.waitForFinished());
    EXPECT_EQ(helper.exitStatus(), QProcess::NormalExit);
    return {helper.exitCode(), helper.readAllStandardOutput()};
}

} // namespace

TEST(AskPass, PrintsThePasswordAndALineFeed) {
    EXPECT_EQ(ask({"Password for root:", "open sesame"}), (Answer{0, "open sesame\n"}));
}

TEST(AskPass, PrintsAnEmptyPasswordAsAnEmptyLine) {
    EXPECT_EQ(ask({"Password for root:", ""}), (Answer{0, "\n"}));
}

TEST(AskPass, PrintsNothingWhenCanceled) {
    EXPECT_EQ(ask({"Password for root:"}), (Answer{1, ""}));
}

TEST(AskPass, SaysSoWhenNoDisplayCanBeOpened) {
    QProcess helper;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "xcb");
    environment.insert("DISPLAY", ":no-such-display");
    helper.setProcessEnvironment(environment);
    helper.start(SCRIVEL_ASKPASS_DRIVER, {"Password for root:"});
    ASSERT_TRUE(helper.waitForFinished());
    EXPECT_EQ(helper.exitCode(), 2);
    EXPECT_EQ(helper.readAllStandardError(), "no display\n");
}
