// The interface files and documents of the wizard, as they lie in the resources.
#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <set>

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QDialog>
#include <QFile>
#include <QLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTextBlock>
#include <QTextDocument>

#include "tests/ui/Stage.h"
#include "ui/InterfaceLoader.h"
#include "ui/PictureView.h"
#include "wizard/WizardOutlets.h"

using stage::front;

namespace {

constexpr const char* kFiles[] = {"Customizer.ui", "ecPanel.ui"};
constexpr const char* kDocuments[] = {"Welcome.html", "UpdateWelcome.html", "ReadMe.html",
                                      "License.html", "Help.html"};

QString resource(const QString& name) {
    return QStringLiteral(SCRIVEL_RESOURCES "/") + name;
}

QByteArray content(const QString& name) {
    QFile file(resource(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

bool load(const char* name, controls::Interface& outlets) {
    front().resources.write(QString(name) + ".ui", content(QString(name) + ".ui"));
    return front().frontEnd.interfaceFiles().load(name, outlets);
}

std::string accessibleName(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).toStdString();
}

/// What a reader of the screen must be able to name; the text of a button is its name.
template <class Widget>
void expectNamesOf(const QDialog& dialog) {
    for (Widget* widget : dialog.findChildren<Widget*>()) {
        const bool isInner = widget->objectName().isEmpty() || // of another widget's making
                             widget->objectName().startsWith("qt_");
        const bool getsItsText = widget->property("text").isValid() &&
                                 QStringList{"othBtn", "altBtn"}.contains(widget->objectName());
        if (!isInner && !getsItsText) {
            EXPECT_NE(accessibleName(widget), "") << widget->objectName().toStdString();
        }
    }
}

struct Panel {
    controls::Window window;
    controls::ImageView msgIcon;
    controls::TextField msgText;
    controls::Button defBtn, altBtn, othBtn;
    controls::Interface outlets{window,
                                {{"msgIcon", &msgIcon},
                                 {"msgText", &msgText},
                                 {"defBtn", &defBtn},
                                 {"altBtn", &altBtn},
                                 {"othBtn", &othBtn}}};
};

} // namespace

TEST(WizardFile, HasAWidgetOfItsKindForEveryOutlet) {
    ec::WizardOutlets outlets;
    EXPECT_TRUE(load("Customizer", outlets.outlets));
}

TEST(WizardFile, HasThePagesInTheOrderOfTheirNumbers) {
    const auto dialog = ui::dialogFrom(resource("Customizer.ui"));
    ASSERT_NE(dialog, nullptr);
    const auto* pages = dialog->findChild<QStackedWidget*>("ecTabView");
    ASSERT_EQ(pages->count(), ec::page::kCount);
    for (int page = 0; page < pages->count(); ++page)
        EXPECT_EQ(pages->widget(page)->objectName(), QString("page%1").arg(page));
}

TEST(WizardFile, BeginsUndecidedAboutTheLicenceAndCautiousAboutLevels) {
    ec::WizardOutlets outlets;
    ASSERT_TRUE(load("Customizer", outlets.outlets));
    EXPECT_EQ(outlets.agreeBtns.selected(), 1);
    EXPECT_EQ(outlets.spotBtns.selected(), 0);
    EXPECT_EQ(outlets.servBtns.selected(), 0);
    EXPECT_EQ(outlets.matSVWInstall.selected(), 0);
}

TEST(WizardFile, FitsEveryPageIntoTheSmallestWindow) {
    const auto dialog = ui::dialogFrom(resource("Customizer.ui"));
    ASSERT_NE(dialog, nullptr);
    const QSize least = dialog->layout()->totalMinimumSize();
    EXPECT_LE(least.width(), dialog->minimumWidth());
    EXPECT_LE(least.height(), dialog->minimumHeight());
}

TEST(PanelFile, HasAWidgetOfItsKindForEveryOutlet) {
    Panel panel;
    EXPECT_TRUE(load("ecPanel", panel.outlets));
    EXPECT_TRUE(panel.altBtn.isHidden());
    EXPECT_TRUE(panel.othBtn.isHidden());
    EXPECT_FALSE(panel.defBtn.isHidden());
}

TEST(WizardFiles, HaveOneDefaultButton) {
    // The first is it; the others are on pages where that is out of sight.
    const std::vector<std::string> defaults[] = {{"nextBtn", "acDoneBtn"}, {"defBtn"}};
    for (std::size_t i = 0; i < std::size(defaults); ++i) {
        const auto dialog = ui::dialogFrom(resource(kFiles[i]));
        ASSERT_NE(dialog, nullptr);
        for (const QPushButton* button : dialog->findChildren<QPushButton*>()) {
            const std::string name = button->objectName().toStdString();
            EXPECT_EQ(button->isDefault(), name == defaults[i].front()) << name;
            EXPECT_EQ(button->autoDefault(), std::ranges::count(defaults[i], name) == 1) << name;
        }
    }
}

TEST(WizardFiles, NameEveryControlForReadersOfTheScreen) {
    for (const char* file : kFiles) {
        const auto dialog = ui::dialogFrom(resource(file));
        ASSERT_NE(dialog, nullptr);
        expectNamesOf<QPushButton>(*dialog);
        expectNamesOf<QRadioButton>(*dialog);
        expectNamesOf<QProgressBar>(*dialog);
        expectNamesOf<QAbstractScrollArea>(*dialog);
        expectNamesOf<ui::PictureView>(*dialog);
        for (QRadioButton* radio : dialog->findChildren<QRadioButton*>()) {
            EXPECT_NE(accessibleName(radio->parentWidget()), "")
                << radio->parentWidget()->objectName().toStdString();
        }
    }
}

class WizardDocuments : public testing::TestWithParam<const char*> {
  protected:
    static QString folder() { return QString(GetParam()) + ".lproj/"; }
};

TEST_P(WizardDocuments, AreThereAndRunInTheDirectionOfTheLanguage) {
    const auto direction = folder().startsWith("ar") ? Qt::RightToLeft : Qt::LeftToRight;
    for (const char* name : kDocuments) {
        QTextDocument document;
        document.setHtml(QString::fromUtf8(content(folder() + name)));
        EXPECT_GT(document.toPlainText().size(), 200) << name;
        EXPECT_FALSE(document.metaInformation(QTextDocument::DocumentTitle).isEmpty()) << name;
        EXPECT_EQ(document.lastBlock().textDirection(), direction) << name;
    }
}

TEST_P(WizardDocuments, HaveHelpForTheInstallerAndForEveryPageWithContent) {
    const QString help = QString::fromUtf8(content(folder() + "Help.html"));
    std::set<QString> anchors;
    static const QRegularExpression name("<a\\s+name=\"([^\"]+)\"");
    for (auto match = name.globalMatch(help); match.hasNext();)
        anchors.insert(match.next().captured(1));

    std::set<QString> wanted{"install"};
    const auto dialog = ui::dialogFrom(resource("Customizer.ui"));
    ASSERT_NE(dialog, nullptr);
    const auto* pages = dialog->findChild<QStackedWidget*>("ecTabView");
    for (int page = 0; page < pages->count(); ++page)
        if (!pages->widget(page)->children().isEmpty())
            wanted.insert(pages->widget(page)->objectName());
    EXPECT_EQ(anchors, wanted);
}

INSTANTIATE_TEST_SUITE_P(All, WizardDocuments,
                         testing::Values("en", "de", "fr", "es", "ja", "zh_CN", "ar"),
                         [](const auto& instance) { return std::string(instance.param); });
