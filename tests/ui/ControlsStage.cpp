#include "tests/ui/ControlsStage.h"

#include <QApplication>
#include <QTest>
#include <QWindow>

namespace stage {

namespace {

constexpr char kFile[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Controls</class>
 <widget class="QDialog" name="controlsWindow">
  <property name="geometry"><rect><x>0</x><y>0</y><width>860</width><height>560</height></rect></property>
  <property name="minimumSize"><size><width>860</width><height>560</height></size></property>
  <property name="windowTitle"><string>Controls</string></property>
  <widget class="QMenuBar" name="menuBar">
   <widget class="QMenu" name="menuFile">
    <property name="title"><string>File</string></property>
    <addaction name="command"/>
    <addaction name="other"/>
   </widget>
   <addaction name="menuFile"/>
  </widget>
  <action name="command">
   <property name="text"><string>Show Log</string></property>
   <property name="shortcut"><string>Ctrl+L</string></property>
  </action>
  <action name="other"><property name="text"><string>Other</string></property></action>
  <layout class="QHBoxLayout" name="frame">
   <item>
    <layout class="QVBoxLayout" name="side">
     <item>
      <widget class="ui::PictureView" name="picture">
       <property name="minimumSize"><size><width>128</width><height>128</height></size></property>
       <property name="maximumSize"><size><width>128</width><height>128</height></size></property>
       <property name="accessibleName"><string>Scrivel</string></property>
      </widget>
     </item>
     <item>
      <widget class="QLabel" name="names">
       <property name="minimumSize"><size><width>170</width><height>0</height></size></property>
       <property name="text"><string>Names</string></property>
       <property name="alignment"><set>Qt::AlignTop</set></property>
      </widget>
     </item>
     <item>
      <spacer name="space"><property name="orientation"><enum>Qt::Vertical</enum></property></spacer>
     </item>
    </layout>
   </item>
   <item>
    <layout class="QVBoxLayout" name="middle">
     <item>
      <widget class="QLabel" name="title">
       <property name="text"><string>Title</string></property>
       <property name="look" stdset="0"><string>title</string></property>
       <property name="textInteractionFlags"><set>Qt::TextSelectableByMouse</set></property>
      </widget>
     </item>
     <item>
      <widget class="QStackedWidget" name="pages">
       <property name="currentIndex"><number>2</number></property>
       <widget class="QWidget" name="page0">
        <layout class="QVBoxLayout" name="layout0">
         <item>
          <widget class="ui::DocumentBrowser" name="document">
           <property name="accessibleName"><string>Licence</string></property>
          </widget>
         </item>
         <item>
          <widget class="QWidget" name="agree">
           <property name="accessibleName"><string>Do you agree?</string></property>
           <layout class="QHBoxLayout" name="cells">
            <item><widget class="QRadioButton" name="yes"><property name="text"><string>Agree</string></property></widget></item>
            <item><widget class="QRadioButton" name="no"><property name="text"><string>Disagree</string></property></widget></item>
            <item><widget class="QCheckBox" name="stray"><property name="text"><string>Stray</string></property></widget></item>
           </layout>
          </widget>
         </item>
        </layout>
       </widget>
       <widget class="QWidget" name="page1">
        <layout class="QVBoxLayout" name="layout1">
         <item>
          <widget class="ui::ComponentTree" name="outline">
           <property name="accessibleName"><string>Components</string></property>
           <property name="columnIdentifiers" stdset="0"><stringlist><string>component</string><string>installed</string><string>info</string></stringlist></property>
           <property name="columnTitles" stdset="0"><stringlist><string>Component</string><string>Installed</string><string>Description</string></stringlist></property>
          </widget>
         </item>
        </layout>
       </widget>
       <widget class="QWidget" name="page2">
        <layout class="QVBoxLayout" name="layout2">
         <item>
          <widget class="QTableView" name="table">
           <property name="accessibleName"><string>Copies of Word</string></property>
           <property name="columnIdentifiers" stdset="0"><stringlist><string>path</string><string>version</string></stringlist></property>
           <property name="columnTitles" stdset="0"><stringlist><string>Path</string><string>Version</string></stringlist></property>
          </widget>
         </item>
        </layout>
       </widget>
      </widget>
     </item>
     <item>
      <layout class="QHBoxLayout" name="buttons">
       <item><spacer name="left"><property name="orientation"><enum>Qt::Horizontal</enum></property></spacer></item>
       <item><widget class="QPushButton" name="back"><property name="text"><string>Back</string></property><property name="autoDefault"><bool>false</bool></property></widget></item>
       <item><widget class="QPushButton" name="next"><property name="text"><string>Next</string></property><property name="default"><bool>true</bool></property></widget></item>
      </layout>
     </item>
    </layout>
   </item>
  </layout>
 </widget>
</ui>
)";

} // namespace

QByteArray controlsFile() {
    return kFile;
}

Component& Components::add(std::string name, controls::CheckCell cell, Component* group) {
    Component& component = m_all.emplace_back();
    component.info = "What " + name + " is for";
    component.name = std::move(name);
    component.cell = cell;
    (group ? group->children : m_groups).push_back(&component);
    return component;
}

const std::vector<Component*>& Components::childrenOf(const controls::OutlineItem* item) const {
    return item ? static_cast<const Component*>(item)->children : m_groups;
}

int Components::outlineViewNumberOfChildrenOfItem(const controls::OutlineItem* item) {
    return static_cast<int>(childrenOf(item).size());
}

bool Components::outlineViewIsItemExpandable(const controls::OutlineItem* item) {
    return item ? !childrenOf(item).empty() : m_groups.empty();
}

controls::OutlineItem* Components::outlineViewChildOfItem(int index,
                                                          const controls::OutlineItem* item) {
    ++childrenAsked;
    const auto& children = childrenOf(item);
    const auto at = static_cast<std::size_t>(index);
    return at < children.size() ? children[at] : nullptr;
}

std::string_view Components::outlineViewObjectValue(std::string_view column,
                                                    const controls::OutlineItem* item) {
    ++textsAsked;
    const auto* component = static_cast<const Component*>(item);
    if (column == "component")
        return component->name;
    return column == "info" ? std::string_view(component->info) : std::string_view();
}

void Components::outlineViewSetObjectValue(bool value, std::string_view,
                                           controls::OutlineItem* item) {
    auto* component = static_cast<Component*>(item);
    component->cell = {.state = value ? 1 : 0};
    for (Component* child : component->children)
        child->cell = component->cell;
    if (view)
        view->reloadData();
}

controls::CheckCell Components::outlineViewWillDisplayCell(const controls::OutlineItem* item) {
    ++cellsAsked;
    return static_cast<const Component*>(item)->cell;
}

bool Components::outlineViewShouldEdit(std::string_view column, const controls::OutlineItem* item) {
    return item && column == "installed";
}

std::string Paths::tableViewObjectValue(std::string_view column, int row) {
    return rows.at(static_cast<std::size_t>(row))[column == "path" ? 0 : 1];
}

bool loadControls(ControlModels& models, const QByteArray& file) {
    front().resources.write("Controls.ui", file);
    return front().frontEnd.interfaceFiles().load("Controls", models.outlets);
}

QDialog* controlsDialog() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName() == "controlsWindow" && widget->isVisible())
            return qobject_cast<QDialog*>(widget);
    return nullptr;
}

controls::StyledText pageNames() {
    const controls::Colour reached{0, 0.44, 0.70, 1};
    const controls::Colour later{0.2, 0.2, 0.2, 0.8};
    controls::StyledText text;
    text.paragraphSpacing = 8;
    for (const auto& [name, isReached, isCurrent] :
         {std::tuple{"Welcome", true, false}, {"Licence", true, true}, {"Summary", false, false}}) {
        text.runs.push_back({"\u2022", isReached ? reached : later, false});
        text.runs.push_back({"  " + std::string(name) + "\n",
                             isReached ? std::optional<controls::Colour>() : later, isCurrent});
    }
    return text;
}

void clickOn(QWidget& widget, QPoint at) {
    QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {},
                      widget.mapTo(widget.window(), at));
}

void clickOn(QWidget& widget) {
    clickOn(widget, widget.rect().center());
}

} // namespace stage
