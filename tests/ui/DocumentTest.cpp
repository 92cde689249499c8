// The text browser of the wizard's pages, and the reader that shows one in a sheet.
#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QToolButton>

#include "tests/ui/ControlsStage.h"
#include "ui/DocumentBrowser.h"

using stage::front;
using testing::HasSubstr;
using ui::DocumentBrowser;

namespace {

class LinkCatcher final : public QObject {
    Q_OBJECT

  public:
    LinkCatcher() { QDesktopServices::setUrlHandler("https", this, "take"); }
    ~LinkCatcher() override { QDesktopServices::unsetUrlHandler("https"); }
    QStringList links;

  public slots:
    void take(const QUrl& link) { links << link.toString(); }
};

struct Documents : testing::Test {
    void SetUp() override {
        front().resources.write("long.html",
                                "<meta charset='utf-8'><h1>Licence</h1><p>First words \u00e9</p>" +
                                    QByteArray("<p>Line of text</p>").repeated(200) +
                                    "<h2><a name='end'>The end</a></h2><p>Last words</p>" +
                                    QByteArray("<p>Line of text</p>").repeated(60));
        ASSERT_TRUE(stage::loadControls(models));
        models.window.orderFront();
        dialog = stage::controlsDialog();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
        browser = dialog->findChild<DocumentBrowser*>("document");
        browser->setFocus();
    }
    static std::string pathOf(const char* name) { return front().resources.folder() + '/' + name; }
    std::string shown() const { return browser->toPlainText().toStdString(); }
    QLineEdit* words() const { return browser->findChild<QLineEdit*>("findWords"); }
    bool isNotFound() const {
        return browser->findChild<QLabel*>("notFound")->isVisibleTo(browser);
    }
    void key(QKeySequence::StandardKey keys) const {
        QTest::keySequence(QApplication::focusWidget(), QKeySequence(keys));
    }

    stage::ControlModels models;
    QDialog* dialog = nullptr;
    DocumentBrowser* browser = nullptr;
};

} // namespace

TEST_F(Documents, ShowTheFileOfTheModel) {
    EXPECT_EQ(shown(), "");
    models.document.setFile(pathOf("long.html"));
    EXPECT_THAT(shown(), HasSubstr("First words \u00e9"));
    models.document.setHidden(true);
    EXPECT_FALSE(browser->isVisible());
}

TEST_F(Documents, SayWhichFileIsMissingAndHowToGoOn) {
    models.document.setFile(pathOf("missing.html"));
    EXPECT_THAT(shown(), HasSubstr(pathOf("missing.html")));
    EXPECT_THAT(shown(), HasSubstr("Download the installer again"));
    models.document.setFile(front().resources.folder()); // a folder is no text either
    EXPECT_THAT(shown(), HasSubstr("Download the installer again"));
}

TEST_F(Documents, ShowTheRunsOfATextOfTheCores) {
    controls::StyledText text;
    text.runs = {{"Done: ", {}, true}, {"<all>\n", controls::Colour{1, 0, 0, 1}, false}};
    models.document.setText(text);
    EXPECT_EQ(shown(), "Done: <all>");
    auto at = browser->document()->begin().begin();
    EXPECT_EQ(at.fragment().charFormat().fontWeight(), QFont::DemiBold);
    EXPECT_EQ((++at).fragment().charFormat().foreground().color(), QColor(Qt::red));
    models.document.setText(controls::StyledText::plain("a <b> & c"));
    EXPECT_EQ(shown(), "a <b> & c");
}

TEST_F(Documents, ScrollWithTheKeyboardAndStayWhereTheyAre) {
    models.document.setFile(pathOf("long.html"));
    const QScrollBar& bar = *browser->verticalScrollBar();
    QTest::keyClick(browser, Qt::Key_PageDown);
    const int page = bar.value();
    EXPECT_GT(page, 0);
    models.document.setEnabled(false);
    models.document.setEnabled(true);
    EXPECT_EQ(bar.value(), page);
    QTest::keyClick(browser, Qt::Key_End);
    EXPECT_EQ(bar.value(), bar.maximum());
    QTest::keyClick(browser, Qt::Key_Home);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(Documents, AreSelectedAndCopiedButNotChanged) {
    models.document.setText(controls::StyledText::plain("To be copied"));
    key(QKeySequence::SelectAll);
    key(QKeySequence::Copy);
    EXPECT_EQ(QApplication::clipboard()->text(), "To be copied");
    QTest::keyClicks(browser, "x");
    EXPECT_EQ(shown(), "To be copied");
}

TEST_F(Documents, OpenLinksToTheWebInTheSystemsBrowser) {
    LinkCatcher catcher;
    models.document.setFile(pathOf("long.html"));
    emit browser->anchorClicked(QUrl("https://example.com/a"));
    EXPECT_EQ(catcher.links, QStringList("https://example.com/a"));
    EXPECT_THAT(shown(), HasSubstr("First words"));
    emit browser->anchorClicked(QUrl("#end"));
    EXPECT_GT(browser->verticalScrollBar()->value(), 0);
    EXPECT_EQ(catcher.links.size(), 1);
}

TEST_F(Documents, ReadNothingFromOutsideTheirFolder) {
    front().resources.write("page.html", "<p>x</p>");
    models.document.setFile(pathOf("page.html"));
    const auto read = [this](const QString& url) {
        return !browser->document()
                    ->resource(QTextDocument::StyleSheetResource, QUrl(url))
                    .toByteArray()
                    .isEmpty();
    };
    EXPECT_TRUE(read("page.html"));
    EXPECT_FALSE(read("https://example.com/x.css"));
    EXPECT_FALSE(read("../../../../../../../../../etc/passwd"));
    EXPECT_FALSE(read("file:///etc/passwd"));
}

TEST_F(Documents, AreFoundInWithThePlatformsKeys) {
    models.document.setFile(pathOf("long.html"));
    key(QKeySequence::Find);
    ASSERT_TRUE(browser->isFinding());
    EXPECT_EQ(QApplication::focusWidget(), words());
    QTest::keyClicks(words(), "WORDS");
    EXPECT_EQ(browser->textCursor().selectedText(), "words");
    const int first = browser->textCursor().position();
    key(QKeySequence::FindNext);
    EXPECT_GT(browser->textCursor().position(), first);
    EXPECT_GT(browser->verticalScrollBar()->value(), 0);
    QTest::keyClick(words(), Qt::Key_Return);
    EXPECT_EQ(browser->textCursor().position(), first) << "on from the beginning";
    key(QKeySequence::FindPrevious);
    EXPECT_GT(browser->textCursor().position(), first);
    stage::clickOn(*browser->findChild<QToolButton*>("findNext"));
    EXPECT_EQ(browser->textCursor().position(), first);
}

TEST_F(Documents, SayWhenTheWordsAreNotFound) {
    models.document.setFile(pathOf("long.html"));
    key(QKeySequence::Find);
    QTest::keyClicks(words(), "nowhere");
    EXPECT_TRUE(isNotFound());
    EXPECT_EQ(words()->accessibleDescription(), "Not found");
    words()->selectAll();
    QTest::keyClicks(words(), "end");
    EXPECT_FALSE(isNotFound());
    EXPECT_EQ(words()->accessibleDescription(), "");
}

TEST_F(Documents, CloseTheBarWithEscapeAndOnlyThenTheWindow) {
    int closes = 0;
    int presses = 0;
    models.window.setShouldClose([&](controls::Window&) { return ++closes > 9; });
    models.next.setAction([&] { ++presses; });
    key(QKeySequence::Find);
    QTest::keyClick(words(), Qt::Key_Return);
    EXPECT_EQ(presses, 0);
    QTest::keyClick(words(), Qt::Key_Escape);
    EXPECT_FALSE(browser->isFinding());
    EXPECT_EQ(closes, 0);
    EXPECT_EQ(QApplication::focusWidget(), browser);
    key(QKeySequence::Find);
    QWidget* next = dialog->findChild<QWidget*>("next");
    next->setFocus();
    QTest::keyClick(next, Qt::Key_Escape);
    EXPECT_FALSE(browser->isFinding());
    EXPECT_EQ(closes, 0);
    QTest::keyClick(browser, Qt::Key_Escape);
    EXPECT_EQ(closes, 1);
}

TEST_F(Documents, NameThePartsOfTheBarForAssistiveTools) {
    key(QKeySequence::Find);
    for (const auto& [name, said] : {std::pair{"findWords", "Find"},
                                     {"findPrevious", "Find Previous"},
                                     {"findNext", "Find Next"},
                                     {"findClose", "Close"}})
        EXPECT_EQ(QAccessible::queryAccessibleInterface(browser->findChild<QWidget*>(name))
                      ->text(QAccessible::Name),
                  said);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(browser)->text(QAccessible::Name), "Licence");
}

TEST_F(Documents, ReadFromRightToLeftWhereTheTextDoes) {
    front().resources.write("rtl.html", QByteArray("<p dir='rtl'>\u05e9\u05dc\u05d5\u05dd</p>"));
    models.document.setFile(pathOf("rtl.html"));
    EXPECT_EQ(browser->document()->begin().textDirection(), Qt::RightToLeft);
}

TEST_F(Documents, AreLegibleInBothAppearances) {
    models.document.setFile(pathOf("long.html"));
    QPalette dark = browser->palette();
    dark.setColor(QPalette::Text, QColor(1, 2, 3));
    browser->setPalette(dark);
    EXPECT_THAT(browser->document()->defaultStyleSheet().toStdString(), HasSubstr("#010203"));
    EXPECT_THAT(shown(), HasSubstr("First words"));
}

TEST_F(Documents, AreReadInASheetUntilItIsClosed) {
    bool hung = false;
    int scrolled = 0;
    front().queue.post([&] {
        auto* sheet = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(sheet, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(sheet));
        hung =
            sheet->parentWidget() == dialog && sheet->geometry().top() == dialog->geometry().top();
        auto* text = sheet->findChild<DocumentBrowser*>();
        scrolled = text->verticalScrollBar()->value();
        EXPECT_TRUE(stage::waitUntil([&] { return QApplication::focusWidget() == text; }));
        EXPECT_TRUE(sheet->isSizeGripEnabled());
        QTest::keyClick(text, Qt::Key_Escape);
    });
    front().frontEnd.reader().read(
        {.title = "Help", .file = pathOf("long.html"), .anchor = "end", .text = ""}, models.window);
    EXPECT_TRUE(hung);
    EXPECT_GT(scrolled, 0);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->findChildren<QDialog*>().size(), 0);
}

TEST_F(Documents, ThatAreReadGoWithTheirWindow) {
    front().queue.post([&] { models.window.orderOut(); });
    front().frontEnd.reader().read({.title = "Help", .file = "", .anchor = "", .text = "Words"},
                                   models.window);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

#include "DocumentTest.moc"
