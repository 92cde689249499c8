#include "ui/InterfaceLoader.h"

#include <tuple>

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QLayout>
#include <QMenuBar>
#include <QUiLoader>

#include "ui/ComponentTree.h"
#include "ui/DocumentBrowser.h"
#include "ui/PictureView.h"
#include "ui/ProgressBar.h"

namespace ui {

namespace {

template <class Widget>
QWidget* make(QWidget* parent) {
    return new Widget(parent);
}

struct OwnClass {
    const char* name;
    QWidget* (*make)(QWidget*);
};

constexpr OwnClass kOwnClasses[] = {
    {"ui::ComponentTree", make<ComponentTree>},
    {"ui::DocumentBrowser", make<DocumentBrowser>},
    {"ui::PictureView", make<PictureView>},
    {"ui::ProgressBar", make<ProgressBar>},
};

/// Knows our own widgets besides Qt's.
class Loader final : public QUiLoader {
  public:
    /// A loader that opens no designer plugin. Its constructor would open every one it finds in the
    /// library paths, which brings in libraries that no window of ours needs.
    static std::unique_ptr<Loader> withoutPlugins() {
        const QStringList paths = QCoreApplication::libraryPaths();
        QCoreApplication::setLibraryPaths({});
        auto loader = std::make_unique<Loader>();
        QCoreApplication::setLibraryPaths(paths);
        return loader;
    }

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
        for (const OwnClass& own : kOwnClasses)
            if (className == QLatin1String(own.name)) {
                QWidget* widget = own.make(parent);
                widget->setObjectName(name);
                return widget;
            }
        return QUiLoader::createWidget(className, parent, name);
    }
};

/// Labels stand where their reader begins to read, also those whose words are in a script of the
/// other direction: a product's name, a path. The toolkit would go by the words.
void alignLabels(const QDialog& dialog) {
    if (dialog.layoutDirection() != Qt::RightToLeft)
        return;
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
        const Qt::Alignment across = label->alignment() & Qt::AlignHorizontal_Mask;
        if (across == Qt::AlignLeft)
            label->setAlignment((label->alignment() & ~across) | Qt::AlignRight |
                                Qt::AlignAbsolute);
    }
}

} // namespace

std::unique_ptr<QDialog> dialogFrom(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    std::unique_ptr<QWidget> widget(Loader::withoutPlugins()->load(&file));
    auto* dialog = qobject_cast<QDialog*>(widget.get());
    if (!dialog)
        return nullptr;
    std::ignore = widget.release();
    if (auto* menus = dialog->findChild<QMenuBar*>(); menus && dialog->layout())
        dialog->layout()->setMenuBar(menus);
    alignLabels(*dialog);
    return std::unique_ptr<QDialog>(dialog);
}

} // namespace ui
