// Renders the window of ControlsStage, page by page, into a folder, for the eye:
//
//   renderControls FOLDER [rtl]
//
// in the appearance that SCRIVEL_APPEARANCE names.
#include <cstdlib>
#include <string_view>

#include <QApplication>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTreeView>

#include "tests/ui/ControlsStage.h"
#include "ui/DocumentBrowser.h"

namespace {

struct Scene {
    const char* name;
    std::function<void(QDialog&)> play;
};

} // namespace

int main(int argc, char** argv) {
    const bool rightToLeft = argc > 2 && std::string_view(argv[2]) == "rtl";
    const char* appearance = std::getenv("SCRIVEL_APPEARANCE");
    const bool dark = appearance && std::string_view(appearance) == "dark";
    const stage::Surroundings surroundings;
    const ui::TranslatedTexts texts = stage::shippedTexts("en");
    const stage::Resources resources;
    stage::PipeQueue queue;
    ui::GuiFrontEnd frontEnd({.argc = argc,
                              .argv = argv,
                              .resourceFolder = resources.folder(),
                              .texts = texts,
                              .mainQueueDescriptor = queue.descriptor(),
                              .runPending = [&] { queue.runPending(); },
                              .dark = dark});
    if (rightToLeft)
        QApplication::setLayoutDirection(Qt::RightToLeft);
    resources.write("Controls.ui", stage::controlsFile());
    resources.write("text.html",
                    "<h1>Licence</h1><p>This is a <b>text</b> with a <a href='https://example.com'>"
                    "link</a>.</p><h2>Rights</h2><ul><li>One</li><li>Two</li></ul>" +
                        QByteArray("<p>You may read this as often as you like, and then again from "
                                   "the beginning, for as long as it lasts.</p>")
                            .repeated(20));

    stage::Components components;
    auto& word = components.add("Microsoft Word integration", {.state = 1});
    components.add("Penmark add-in", {.state = 1}, &word);
    auto& categories = components.add("Content categories", {.state = -2, .allowsMixed = true});
    components.add("Arts and humanities", {.state = 1}, &categories);
    components.add("Engineering", {}, &categories);
    components.add("Law", {.enabled = false}, &categories);
    components.add("Browser extension");
    stage::Paths paths;
    paths.rows = {{"/Applications/Microsoft Word.app", "16"},
                  {"/Applications/Word 2011.app", "14"}};

    stage::ControlModels models;
    models.outline.setDataSource(&components);
    models.outline.setDelegate(&components);
    components.view = &models.outline;
    models.table.setDataSource(&paths);
    if (!frontEnd.interfaceFiles().load("Controls", models.outlets))
        return 1;
    models.names.setStyledText(stage::pageNames());
    models.picture.setPicture({"/Customizer.icns", resources.folder() + "/Customizer.icns"});
    models.document.setFile(resources.folder() + "/text.html");
    models.title.setText("Select Components");
    models.window.orderFront();

    const auto* document = stage::controlsDialog()->findChild<ui::DocumentBrowser*>();

    const Scene scenes[] = {
        {"document", [&](QDialog&) { models.pages.select(0); }},
        {"find",
         [&](QDialog&) {
             const_cast<ui::DocumentBrowser*>(document)->beginFind();
             QTest::keyClicks(document->findChild<QLineEdit*>("findWords"), "again");
         }},
        {"tree", [&](QDialog&) { models.pages.select(1); }},
        {"tree-selected",
         [&](QDialog& dialog) {
             dialog.findChild<QTreeView*>()->setFocus(Qt::TabFocusReason);
             QTest::keyClick(dialog.findChild<QTreeView*>(), Qt::Key_Down);
             QTest::keyClick(dialog.findChild<QTreeView*>(), Qt::Key_Down);
         }},
        {"table",
         [&](QDialog& dialog) {
             models.pages.select(2);
             models.table.selectRow(1);
             dialog.findChild<QWidget*>("table")->setFocus(Qt::TabFocusReason);
         }},
        {"menu", [&](QDialog& dialog) { dialog.findChild<QMenu*>()->popup(QPoint(0, 20)); }},
    };

    for (const Scene& scene : scenes) {
        QDialog& dialog = *stage::controlsDialog();
        scene.play(dialog);
        QTest::qWait(100);
        QWidget* shown = QApplication::activePopupWidget();
        const QString file = QString::fromLocal8Bit(argv[1]) + '/' + scene.name +
                             (rightToLeft ? "-rtl" : "") + (dark ? "-dark.png" : "-light.png");
        if (!(shown ? shown->grab().toImage() : stage::pictureOf(dialog)).save(file))
            return 1;
        if (shown)
            shown->close();
    }
    return 0;
}
