// What the tests of the front end share: a resource folder as the bundle has it, the translations
// of the built bundle, a main queue, and the installer window's models with its alerts.
#pragma once

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include <QImage>
#include <QTemporaryDir>

#include "platform/controls/Interface.h"
#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"
#include "platform/ports/Queues.h"
#include "ui/GuiFrontEnd.h"
#include "ui/TranslatedTexts.h"

class QDialog;

namespace ui {
class SheetDialog;
} // namespace ui

namespace stage {

/// The texts of one of the translations that are shipped ("de", ...); English for any other.
ui::TranslatedTexts shippedTexts(const std::string& language);

/// Those translations, and English.
inline constexpr const char* kLanguages[] = {"en", "de", "fr", "es", "ja", "zh_CN", "ar"};

/// The key's translation with each "%@" replaced.
std::string formatted(const ports::LocalizedTexts& texts, ports::TextKey key,
                      std::initializer_list<std::string_view> values);

/// A resource folder with the interface file and the pictures, gone with this.
class Resources {
  public:
    Resources();
    std::string folder() const { return m_folder.path().toStdString(); }
    void write(const QString& name, const QByteArray& content) const;

  private:
    QTemporaryDir m_folder;
};

/// A main queue over a pipe, for the thread that makes it.
class PipeQueue final : public ports::MainQueue {
  public:
    PipeQueue();
    ~PipeQueue();
    void post(std::function<void()> work) override;
    void sync(const std::function<void()>& work) override;
    bool isMainThread() const override { return std::this_thread::get_id() == m_main; }

    int descriptor() const { return m_ends[0]; }
    void runPending();

  private:
    std::thread::id m_main = std::this_thread::get_id();
    int m_ends[2];
    std::mutex m_mutex;
    std::condition_variable m_finished;
    std::deque<std::function<void()>> m_work;
};

/// The models of the installer window, named as in its interface file.
struct InstallerModels {
    controls::Window window;
    controls::Button m_button;
    controls::TextField m_statusTextField;
    controls::Progress m_progressIndicator;
    controls::Interface outlets{window,
                                {{"m_button", &m_button},
                                 {"m_statusTextField", &m_statusTextField},
                                 {"m_progressIndicator", &m_progressIndicator}}};

    /// Titles as the installer's flow sets them: black on every toolkit that follows a dark
    /// desktop.
    void setBlackTitle(const std::string& title);
    void beginInstalling(const ports::LocalizedTexts& texts);
};

ports::Alert runningAlert(const ports::LocalizedTexts& texts);
ports::Alert overwriteAlert(const ports::LocalizedTexts& texts);
ports::Alert unableAlert(const ports::LocalizedTexts& texts);

/// The window with the sheets that hang on it, as the screen would show them.
QImage pictureOf(const QWidget& window);

/// What the toolkit finds around it: the offscreen platform unless another one is named, a runtime
/// folder of its own, and a locale that is the same everywhere; what only the offscreen platform
/// complains of is not printed. Made before the front end.
class Surroundings {
  public:
    Surroundings();

  private:
    QTemporaryDir m_runtime;
};

/// The front end of a test program, light and in English; one in a process.
struct Front {
    Front(int& argc, char** argv);

    Resources resources;
    ui::TranslatedTexts texts = shippedTexts("en");
    PipeQueue queue;
    ui::GuiFrontEnd frontEnd;
};

Front& front();

/// The main function of a test program: makes the front end when a test is to run.
int runTests(int argc, char** argv);

/// The installer window in sight, or null.
QDialog* dialogOnScreen();
/// The sheet in sight, or null.
ui::SheetDialog* sheetOnScreen();

/// Serves events until the condition holds; false when it does not within ten seconds.
bool waitUntil(const std::function<bool()>& condition);

} // namespace stage
