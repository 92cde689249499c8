// Every page of the wizard in its smallest window: no text is cut in any language, and each stands
// out from its ground in both appearances.
#include <memory>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

#include "tests/ui/Stage.h"
#include "ui/Colours.h"
#include "ui/InterfaceLoader.h"
#include "ui/Texts.h"
#include "wizard/StepTables.h"
#include "wizard/WizardOutlets.h"

namespace {

constexpr ports::TextKey kNextTitles[] = {"Next", "Continue", "Done", "Exit", "Retry"};
constexpr const char* kPseudo = "en_XA";

ui::TranslatedTexts textsIn(const std::string& language) {
    if (language != kPseudo)
        return stage::shippedTexts(language);
    return ui::TranslatedTexts(
        {.resourceFolder = SCRIVEL_PSEUDO_RESOURCES, .languages = {language + ".UTF-8"}});
}

/// The wizard's window at its smallest, as its interface file makes it in a language.
struct SmallestWizard {
    explicit SmallestWizard(const std::string& language) : texts(textsIn(language)) {
        ui::TextsTranslator translator(texts);
        QApplication::installTranslator(&translator);
        dialog = ui::dialogFrom(SCRIVEL_RESOURCES "/Customizer.ui");
        QApplication::removeTranslator(&translator);
        if (!dialog)
            throw std::runtime_error("Customizer.ui can't be loaded");
        pages = dialog->findChild<QStackedWidget*>("ecTabView");
        dialog->resize(dialog->minimumSize());
        dialog->show();
    }
    void show(int page) {
        QString title;
        for (const ec::PageTitle& its : ec::gInstallStateLabels)
            if (its.page == page)
                title = QString::fromStdString(texts.lookUp(its.title));
        auto& label = *dialog->findChild<QLabel*>("titleText");
        label.setText(title);
        label.setVisible(!title.isEmpty());
        pages->setCurrentIndex(page);
        QApplication::processEvents();
    }
    void titleNext(ports::TextKey title) {
        dialog->findChild<QPushButton*>("nextBtn")->setText(
            QString::fromStdString(texts.lookUp(title)));
    }
    template <class Widget>
    std::vector<Widget*> inSight() const {
        std::vector<Widget*> all;
        for (Widget* widget : dialog->findChildren<Widget*>())
            if (widget->isVisible())
                all.push_back(widget);
        return all;
    }

    ui::TranslatedTexts texts;
    std::unique_ptr<QDialog> dialog;
    QStackedWidget* pages = nullptr;
};

bool isWhole(const QLabel& label) {
    if (label.text().isEmpty())
        return true;
    if (!label.wordWrap())
        return label.width() >= label.sizeHint().width() &&
               label.height() >= label.sizeHint().height();
    return label.height() >= label.heightForWidth(label.width());
}

} // namespace

class WizardInALanguage : public testing::TestWithParam<const char*> {};

TEST_P(WizardInALanguage, FitsItsSmallestWindowOnEveryPage) {
    SmallestWizard wizard(GetParam());
    int labels = 0;
    for (int page = 0; page < wizard.pages->count(); ++page) {
        wizard.show(page);
        ASSERT_EQ(wizard.dialog->size(), wizard.dialog->minimumSize()) << "page " << page;
        for (const QLabel* label : wizard.inSight<QLabel>()) {
            EXPECT_TRUE(isWhole(*label))
                << "page " << page << ", " << label->objectName().toStdString() << ": "
                << label->text().toStdString();
            ++labels;
        }
        for (const auto* button : wizard.inSight<QAbstractButton>()) {
            EXPECT_GE(button->width(), button->sizeHint().boundedTo(button->maximumSize()).width())
                << "page " << page << ", " << button->objectName().toStdString();
        }
    }
    EXPECT_GT(labels, 40);
}

TEST_P(WizardInALanguage, HasRoomForEveryTitleOfTheNextButton) {
    SmallestWizard wizard(GetParam());
    wizard.show(ec::page::kComponents);
    for (const ports::TextKey title : kNextTitles) {
        wizard.titleNext(title);
        QApplication::processEvents();
        EXPECT_EQ(wizard.dialog->size(), wizard.dialog->minimumSize()) << title.english();
        for (const QPushButton* button : wizard.inSight<QPushButton>()) {
            EXPECT_GE(button->width(), button->sizeHint().boundedTo(button->maximumSize()).width())
                << title.english() << ", " << button->objectName().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Every, WizardInALanguage,
                         testing::Values("en", "de", "fr", "es", "ja", "zh_CN", "ar", kPseudo),
                         [](const auto& instance) { return std::string(instance.param); });

/// The wizard's window with its models.
struct WizardWindow : testing::Test {
    void SetUp() override {
        QFile file(SCRIVEL_RESOURCES "/Customizer.ui");
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        stage::front().resources.write("Customizer.ui", file.readAll());
        ASSERT_TRUE(stage::front().frontEnd.interfaceFiles().load("Customizer", outlets.outlets));
        outlets.window.orderFront();
        dialog = stage::dialogOnScreen();
        ASSERT_NE(dialog, nullptr);
    }
    ec::WizardOutlets outlets;
    QDialog* dialog = nullptr;
};

TEST_F(WizardWindow, OpensAsLargeAsItsFileSaysAndCanBeMadeLarger) {
    const auto made = ui::dialogFrom(SCRIVEL_RESOURCES "/Customizer.ui");
    EXPECT_EQ(dialog->size(), made->size());
    EXPECT_GT(dialog->height(), dialog->minimumHeight());
    dialog->resize(dialog->size() * 1.2);
    const QSize larger = dialog->size();
    outlets.window.orderOut();
    outlets.window.orderFront();
    EXPECT_EQ(dialog->size(), larger) << "it stays as the user has it";
}

TEST_F(WizardWindow, GivesEveryButtonTheTitleOfItsFileAlsoWhereItIsDisabledOrHidden) {
    int untitled = 0;
    for (const controls::NamedOutlet& outlet : outlets.outlets.outlets)
        if (auto* const* button = std::get_if<controls::Button*>(&outlet.control))
            untitled += (*button)->title().empty();
    EXPECT_EQ(untitled, 0);
    EXPECT_EQ(outlets.logBtn.title(), "Show Log");
}

TEST_F(WizardWindow, LeavesNoRoomForATitleThatIsEmpty) {
    const auto* pages = dialog->findChild<QStackedWidget*>("ecTabView");
    outlets.titleText.setText("Select Components");
    QApplication::processEvents();
    const int below = pages->y();
    outlets.titleText.setText("");
    QApplication::processEvents();
    EXPECT_LT(pages->y(), below - 20);
    outlets.titleText.setText("Finish");
    QApplication::processEvents();
    EXPECT_EQ(pages->y(), below);
}

TEST_F(WizardWindow, IsBusyOnlyWhileABarInSightRuns) {
    const auto* next = dialog->findChild<QPushButton*>("nextBtn");
    outlets.ecTabView.select(10);
    outlets.progress.startAnimation();
    EXPECT_FALSE(next->isDefault());
    outlets.ecTabView.select(ec::page::kComponents); // the bar runs on, out of sight
    EXPECT_TRUE(next->isDefault());
    outlets.ecTabView.select(10);
    EXPECT_FALSE(next->isDefault());
    outlets.progress.stopAnimation();
    EXPECT_TRUE(next->isDefault());
}

class WizardInAnAppearance : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override { QApplication::setPalette(ui::paletteFor(GetParam())); }
    void TearDown() override { QApplication::setPalette(m_before); }

    const QPalette m_before = QApplication::palette();
};

TEST_P(WizardInAnAppearance, ShowsTextsThatStandOutFromTheirGround) {
    SmallestWizard wizard("en");
    int texts = 0;
    for (int page = 0; page < wizard.pages->count(); ++page) {
        wizard.show(page);
        const QImage picture = wizard.dialog->grab().toImage();
        const auto check = [&](const QWidget& widget, const QString& text) {
            if (text.isEmpty())
                return;
            const QPoint beside = widget.mapTo(wizard.dialog.get(), QPoint(0, 0)) - QPoint(2, 2);
            const QColor ink = widget.palette().color(widget.foregroundRole());
            const QColor ground = picture.pixelColor(beside);
            EXPECT_GE(ui::contrast(ink, ground), ui::kLegible)
                << "page " << page << ": " << text.toStdString() << ", " << ink.name().toStdString()
                << " on " << ground.name().toStdString();
            ++texts;
        };
        for (const QLabel* label : wizard.inSight<QLabel>())
            check(*label, label->text());
        for (const QRadioButton* radio : wizard.inSight<QRadioButton>())
            check(*radio, radio->text());
    }
    EXPECT_GT(texts, 40);
}

TEST_P(WizardInAnAppearance, ShowsWhatIsDisabledAsDisabled) {
    SmallestWizard wizard("en");
    wizard.show(13);
    for (const char* name : {"spotText", "servText"}) {
        auto& label = *wizard.dialog->findChild<QLabel*>(name);
        const QImage enabled = label.grab().toImage();
        label.setEnabled(false);
        EXPECT_NE(label.grab().toImage(), enabled) << name;
    }
    for (const char* name : {"spotBtns", "servBtns"}) {
        auto& cells = *wizard.dialog->findChild<QWidget*>(name);
        for (QWidget* inner : cells.findChildren<QWidget*>()) {
            const QColor enabled = inner->palette().color(QPalette::Active, QPalette::WindowText);
            const QColor disabled =
                inner->palette().color(QPalette::Disabled, QPalette::WindowText);
            EXPECT_NE(enabled, disabled) << inner->objectName().toStdString();
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Either, WizardInAnAppearance, testing::Bool(),
                         [](const auto& instance) { return instance.param ? "Dark" : "Light"; });
