#include "ui/UiFiles.h"

#include <algorithm>

#include <QCoreApplication>
#include <QDialog>
#include <QFile>
#include <QUiLoader>

#include "ui/PictureView.h"
#include "ui/bind/ButtonBinding.h"
#include "ui/bind/ProgressBinding.h"
#include "ui/bind/TextFieldBinding.h"
#include "ui/bind/WindowBinding.h"

namespace ui {

namespace {

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
        QWidget* widget = className == "ui::ProgressBar"   ? new ProgressBar(parent)
                          : className == "ui::PictureView" ? new PictureView(parent)
                                                           : static_cast<QWidget*>(nullptr);
        if (!widget)
            return QUiLoader::createWidget(className, parent, name);
        widget->setObjectName(name);
        return widget;
    }
};

std::unique_ptr<QDialog> dialogFrom(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return nullptr;
    std::unique_ptr<QWidget> widget(Loader::withoutPlugins()->load(&file));
    auto* dialog = qobject_cast<QDialog*>(widget.get());
    if (dialog)
        std::ignore = widget.release();
    return std::unique_ptr<QDialog>(dialog);
}

QString nameOf(const controls::NamedOutlet& outlet) {
    return QString::fromUtf8(outlet.name.data(), static_cast<qsizetype>(outlet.name.size()));
}

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

/// Is the outlet's widget there, and of the kind that the model needs?
struct HasWidget {
    const QDialog& dialog;
    QString name;

    bool operator()(controls::Button*) const { return dialog.findChild<QPushButton*>(name); }
    bool operator()(controls::TextField*) const { return dialog.findChild<QLabel*>(name); }
    bool operator()(controls::Progress*) const { return dialog.findChild<ProgressBar*>(name); }
    bool operator()(const void*) const { return false; }
};

} // namespace

/// One interface file with its bindings; they die before the widgets.
class UiFiles::Loaded {
  public:
    Loaded(std::unique_ptr<QDialog> dialog, const controls::Interface& outlets,
           const ports::LocalizedTexts& texts)
        : m_dialog(std::move(dialog)), m_texts(texts), m_window(outlets.window, *m_dialog) {
        for (const controls::NamedOutlet& outlet : outlets.outlets)
            std::visit([&](auto* model) { bind(*model, nameOf(outlet)); }, outlet.control);
    }

    QDialog* dialog() const { return m_dialog.get(); }
    /// Null once the models have died.
    const controls::Window* window() const { return m_window.model(); }

  private:
    void bind(controls::Control&, const QString&) {}
    void bind(controls::Button& model, const QString& name) {
        m_buttons.push_back(
            std::make_unique<ButtonBinding>(model, *m_dialog->findChild<QPushButton*>(name)));
    }
    void bind(controls::TextField& model, const QString& name) {
        m_textFields.push_back(
            std::make_unique<TextFieldBinding>(model, *m_dialog->findChild<QLabel*>(name)));
    }
    void bind(controls::Progress& model, const QString& name) {
        m_progresses.push_back(std::make_unique<ProgressBinding>(
            model, ProgressBinding::Needs{.bar = *m_dialog->findChild<ProgressBar*>(name),
                                          .caption = m_dialog->findChild<QLabel*>(name + "Caption"),
                                          .texts = m_texts}));
    }

    std::unique_ptr<QDialog> m_dialog;
    const ports::LocalizedTexts& m_texts;
    WindowBinding m_window;
    std::vector<std::unique_ptr<ButtonBinding>> m_buttons;
    std::vector<std::unique_ptr<TextFieldBinding>> m_textFields;
    std::vector<std::unique_ptr<ProgressBinding>> m_progresses;
};

UiFiles::UiFiles(Needs needs) : m_needs(std::move(needs)) {}

UiFiles::~UiFiles() = default;

bool UiFiles::load(std::string_view name, controls::Interface& outlets) {
    const std::string path = m_needs.resourceFolder + '/' + std::string(name) + ".ui";
    auto dialog = dialogFrom(QString::fromStdString(path));
    if (!dialog)
        return false;
    for (const controls::NamedOutlet& outlet : outlets.outlets)
        if (!std::visit(HasWidget{*dialog, nameOf(outlet)}, outlet.control))
            return false;

    alignLabels(*dialog);
    for (PictureView* view : dialog->findChildren<PictureView*>())
        view->showFrom(m_needs.pictures);
    std::erase_if(m_loaded, [&](const auto& loaded) {
        return !loaded->window() || loaded->window() == &outlets.window;
    });
    m_loaded.push_back(std::make_unique<Loaded>(std::move(dialog), outlets, m_needs.texts));
    return true;
}

QDialog* UiFiles::dialogOf(const controls::Window& window) const {
    for (const auto& loaded : m_loaded)
        if (loaded->window() == &window)
            return loaded->dialog();
    return nullptr;
}

} // namespace ui
