// The running wizard in a language made for tests, whose texts are all in brackets: what shows
// without them goes round the translations.
#include <gmock/gmock.h>

#include <set>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTextBrowser>
#include <QTextDocument>
#include <QXmlStreamReader>

#include "tests/wizardwindow/WizardWindow.h"

namespace {

namespace modes = tests::modes;

/// The texts that the wizard's interface files say not to translate.
std::set<QString> names() {
    std::set<QString> names{QString()};
    for (const char* name : {"Customizer.ui", "ecPanel.ui"}) {
        QFile file(QStringLiteral(SCRIVEL_RESOURCES "/") + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        while (!xml.atEnd())
            if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"string" &&
                xml.attributes().value("notr") == u"true")
                names.insert(xml.readElementText());
    }
    return names;
}

QStringList linesOf(const QLabel& label) {
    if (label.textFormat() != Qt::RichText)
        return {label.text()};
    QTextDocument document;
    document.setHtml(label.text());
    return document.toPlainText().split('\n');
}

QStringList textsIn(const QAbstractItemView& view) {
    QStringList texts;
    const QAbstractItemModel& rows = *view.model();
    for (int column = 0; column < rows.columnCount(); ++column)
        texts << rows.headerData(column, Qt::Horizontal).toString();
    for (const QModelIndex& row : rows.match(rows.index(0, 0), Qt::DisplayRole, QString(), -1,
                                             Qt::MatchContains | Qt::MatchRecursive))
        for (int column = 0; column < rows.columnCount(); ++column)
            texts << row.siblingAtColumn(column).data().toString()
                  << row.siblingAtColumn(column).data(Qt::ToolTipRole).toString()
                  << row.siblingAtColumn(column).data(Qt::AccessibleTextRole).toString();
    return texts;
}

/// What the widget shows or tells a reader of the screen; not the documents.
QStringList textsOf(QWidget& widget) {
    QStringList texts{widget.accessibleName(), widget.accessibleDescription(), widget.toolTip()};
    if (const auto* label = qobject_cast<QLabel*>(&widget))
        return texts + linesOf(*label);
    if (const auto* button = qobject_cast<QAbstractButton*>(&widget))
        texts << button->text();
    if (const auto* line = qobject_cast<QLineEdit*>(&widget))
        texts << line->placeholderText();
    if (const auto* view = qobject_cast<QAbstractItemView*>(&widget); view && view->model())
        if (!widget.inherits("QHeaderView"))
            texts << textsIn(*view);
    if (QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&widget))
        texts << accessible->text(QAccessible::Name);
    return texts;
}

struct PseudoWizard : tests::WizardWindow {
    PseudoWizard() : WizardWindow("en_XA", SCRIVEL_PSEUDO_RESOURCES) {}

    /// Looks at all that is in sight.
    Deed looking() {
        return [this] {
            for (QWidget* widget : front()->findChildren<QWidget*>())
                if (widget->isVisible())
                    look(*widget);
        };
    }
    /// Everything on every page, in sight or not.
    void lookAtAll(const QWidget& window) {
        for (QWidget* widget : window.findChildren<QWidget*>())
            look(*widget);
    }
    int seen = 0;

  private:
    void look(QWidget& widget) {
        if (widget.objectName() == "aboutText" || widget.objectName() == "qt_toolbar_ext_button")
            return; // the text of a file
        for (QString text : textsOf(widget)) {
            static const QRegularExpression bullet("^[\\s•◦▸●○✓]+");
            text = text.remove(bullet).trimmed();
            const bool bracketed = text.startsWith("⟦") && text.endsWith("⟧");
            seen += bracketed;
            EXPECT_TRUE(bracketed || m_names.contains(text))
                << widget.objectName().toStdString() << " on page " << wizard.ecTabView.selected()
                << ": \"" << text.toStdString() << "\"";
        }
    }

    const std::set<QString> m_names = names();
};

TEST_F(PseudoWizard, ShowsNoTextThatIsNotTranslatedInTheFullInstall) {
    walk(modes::kFull,
         {looking(), key(Qt::Key_Return), looking(),
          [] { press(QKeySequence(QKeySequence::Find)); }, [] { type("zzz"); }, looking(),
          key(Qt::Key_Escape), key(Qt::Key_Return), looking(), clicking("agreeBtn"),
          key(Qt::Key_Return), looking(), key(Qt::Key_Return), looking(), key(Qt::Key_Return)});
    EXPECT_GT(seen, 60);
}

TEST_F(PseudoWizard, ShowsNoTextThatIsNotTranslatedInTheCustomizer) {
    walk(modes::kCustomize, {looking(),
                             [this] {
                                 EXPECT_GT(seen, 30) << "the names of the components among them";
                                 tabTo("ecOutlineView");
                                 press(Qt::Key_Down);
                             },
                             looking(), // the description of the one that is selected
                             clicking("uninstallBtn"), looking(), key(Qt::Key_Escape),
                             clicking("helpBtn"), looking(), key(Qt::Key_Escape),
                             [this] {
                                 system.rules.setItemState(14, 1); // the Spotlight importer
                                 press(Qt::Key_Return);
                             },
                             looking(), key(Qt::Key_Return), looking(), clicking("logBtn"),
                             looking(), key(Qt::Key_Escape), key(Qt::Key_Return)});
}

TEST_F(PseudoWizard, ShowsNoTextThatIsNotTranslatedInPenmark) {
    walk(modes::kPenmark, {looking(), clicking("penmarkUninstall"), key(Qt::Key_Return), looking(),
                           clicking("altBtn"), looking(), key(Qt::Key_Return)});
}

TEST_F(PseudoWizard, ShowsNoTextThatIsNotTranslatedInTheUpdate) {
    walk(modes::kUpdate, {looking(), key(Qt::Key_Return), looking(), key(Qt::Key_Return), looking(),
                          key(Qt::Key_Return)});
}

TEST_F(PseudoWizard, ShowsNoTextThatIsNotTranslatedWhileWordRuns) {
    walk(modes::kPenmark, {[this] {
                               system.fakes.applications.running.insert("com.microsoft.Word");
                               press(Qt::Key_Return);
                           },
                           looking(), key(Qt::Key_Escape)});
}

TEST_F(PseudoWizard, HasNoTextThatIsNotTranslatedOnAnyOfItsPages) {
    walk(modes::kCustomize, {[this] {
                                 lookAtAll(*dialog());
                                 EXPECT_GT(seen, 100);
                             },
                             key(Qt::Key_Escape)});
}

} // namespace
