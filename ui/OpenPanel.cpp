#include "ui/OpenPanel.h"

#include <QAbstractFileIconProvider>
#include <QApplication>
#include <QFileSystemModel>
#include <QSortFilterProxyModel>
#include <QStyle>

#include "ui/StandardIcons.h"
#include "ui/Texts.h"

namespace ui {

namespace {

/// Icons that were made before, for the dialog asks for them on a thread of its own.
class Icons final : public QAbstractFileIconProvider {
  public:
    explicit Icons(const QStyle& style)
        : m_folder(style.standardIcon(QStyle::SP_DirIcon)),
          m_file(style.standardIcon(QStyle::SP_FileIcon)),
          m_computer(style.standardIcon(QStyle::SP_ComputerIcon)),
          m_application(applicationIcon()) {}

    QIcon icon(IconType type) const override {
        switch (type) {
        case Folder:
            return m_folder;
        case File:
            return m_file;
        default:
            return m_computer;
        }
    }
    QIcon icon(const QFileInfo& file) const override {
        if (file.suffix() == "app")
            return m_application;
        return file.isDir() ? m_folder : m_file;
    }

  private:
    QIcon m_folder;
    QIcon m_file;
    QIcon m_computer;
    QIcon m_application;
};

/// Leaves out the files that can't be chosen.
class OfferedOnly final : public QSortFilterProxyModel {
  public:
    OfferedOnly(std::function<bool(const QFileInfo&)> isOffered, QObject* parent)
        : QSortFilterProxyModel(parent), m_isOffered(std::move(isOffered)) {}

  protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override {
        const auto* files = static_cast<const QFileSystemModel*>(sourceModel());
        const QFileInfo file = files->fileInfo(files->index(row, 0, parent));
        return file.isDir() || m_isOffered(file);
    }
    bool lessThan(const QModelIndex& left, const QModelIndex& right) const override {
        return QString::localeAwareCompare(left.data().toString(), right.data().toString()) < 0;
    }

  private:
    std::function<bool(const QFileInfo&)> m_isOffered;
};

} // namespace

OpenPanel::OpenPanel(const ports::Chooser& chooser, const QString& start, QWidget* parent,
                     const OpenPanels::Needs& needs)
    : QFileDialog(parent, QString::fromStdString(chooser.title), start),
      m_wantsFolder(chooser.kind == ports::Chooser::Kind::folder), m_typeOf(needs.typeOf) {
    for (const std::string& type : chooser.types)
        m_types << QString::fromStdString(type);
    setObjectName("openPanel");
    setWindowModality(Qt::ApplicationModal);
    setOption(DontUseNativeDialog);
    setOption(DontUseCustomDirectoryIcons);
    setOption(ReadOnly);
    setOption(ShowDirsOnly, m_wantsFolder);
    setFileMode(m_wantsFolder ? Directory : ExistingFile);
    setAcceptMode(AcceptOpen);
    setViewMode(Detail);
    static Icons icons(*QApplication::style());
    setIconProvider(&icons);
    if (!m_wantsFolder)
        setProxyModel(
            new OfferedOnly([this](const QFileInfo& file) { return isOffered(file); }, this));
    setLabelText(LookIn, localized(needs.texts, "Look in:"));
    setLabelText(FileName, m_wantsFolder ? localized(needs.texts, "Folder:")
                                         : localized(needs.texts, "Application:"));
    setLabelText(Accept, localized(needs.texts, "Choose"));
    setLabelText(Reject, localized(needs.texts, "Cancel"));
    connect(this, &QFileDialog::directoryEntered, this, [this](const QString& folder) {
        if (!m_wantsFolder && isOffered(QFileInfo(folder)))
            choose(folder);
    });
}

bool OpenPanel::isOffered(const QFileInfo& file) const {
    if (!file.suffix().isEmpty() && m_types.contains(file.suffix(), Qt::CaseInsensitive))
        return true;
    if (!file.isFile() || !m_typeOf)
        return false;
    const std::string type = m_typeOf(file.absoluteFilePath().toStdString());
    return !type.empty() && m_types.contains(QString::fromStdString(type));
}

void OpenPanel::choose(const QString& path) {
    m_chosen = QFileInfo(path).absoluteFilePath();
    done(Accepted);
}

void OpenPanel::accept() {
    const QStringList selected = selectedFiles();
    if (selected.isEmpty())
        return;
    const QFileInfo file(selected.first());
    if (m_wantsFolder ? file.isDir() : isOffered(file) && file.exists())
        choose(file.filePath());
    else if (file.isDir())
        setDirectory(file.filePath());
    else
        QApplication::beep();
}

} // namespace ui
