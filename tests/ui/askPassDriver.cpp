// The askpass helper with a user who types at once:  askPassDriver PROMPT [PASSWORD]
// Without a password the user presses Escape. The driver's own last argument is not passed on.
#include <cstdio>
#include <cstdlib>
#include <optional>

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include "tests/ui/Stage.h"
#include "ui/AskPassDialog.h"

namespace {

QString s_password;

void answerWhenAsked() {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog)
            return;
        timer->stop();
        if (s_password.isNull())
            return QTest::keyClick(dialog, Qt::Key_Escape);
        QTest::keyClicks(dialog->findChild<QLineEdit*>("password"), s_password);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    timer->start(5);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(answerWhenAsked)

int main(int argc, char** argv) {
    if (argc > 2) {
        s_password = QString::fromUtf8(argv[2]);
        argv[--argc] = nullptr;
    }
    std::optional<stage::Resources> resources(std::in_place);
    const ui::TranslatedTexts texts = stage::shippedTexts("en");
    return ui::runAskPass({.argc = argc,
                           .argv = argv,
                           .resourceFolder = resources->folder(),
                           .texts = texts,
                           .dark = false,
                           .onNoDisplay = [&] {
                               resources.reset();
                               std::fputs("no display\n", stderr);
                               std::_Exit(2);
                           }});
}
