#include <QComboBox>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QDropEvent>
#include <QMimeData>
#include <QProcess>
#include <QUrl>
#include <fstream>
#include <optional>

#include "tests/ui/window_test.h"
#include "ui/desktop_portal.h"
#include "ui/field_edit.h"
#include "ui/handbook_window.h"
#include "ui/screen_window.h"
#include "ui/window_place.h"

namespace veldox::testing {
namespace {

/// A message bus of the test's own.
class PrivateBus {
 public:
  PrivateBus() {
    daemon_.start(QStringLiteral("dbus-daemon"),
                  {QStringLiteral("--session"), QStringLiteral("--nofork"),
                   QStringLiteral("--print-address")});
    if (daemon_.waitForStarted() && daemon_.waitForReadyRead()) {
      address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
    }
  }
  ~PrivateBus() {
    daemon_.kill();
    daemon_.waitForFinished();
  }
  QDBusConnection Connect(const char* name) const {
    return QDBusConnection::connectToBus(address_, QLatin1String(name));
  }
  bool runs() const { return !address_.isEmpty(); }

 private:
  QProcess daemon_;
  QString address_;
};

constexpr const char* kPortalPath = "/org/freedesktop/portal/desktop";
constexpr const char* kPortalInterface = "org.freedesktop.portal.Settings";

/// A desktop's settings portal. It answers from a thread of its own, as another program does.
class Portal : public QDBusVirtualObject {
 public:
  explicit Portal(uint scheme) : scheme_(scheme) {}
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& message, const QDBusConnection& bus) override {
    if (message.member() != QLatin1String("Read")) return false;
    const QVariant inner = QVariant::fromValue(QDBusVariant(scheme_));
    bus.send(message.createReply(QVariant::fromValue(QDBusVariant(inner))));
    return true;
  }

 private:
  uint scheme_;
};

/// Runs a portal on a bus while it lives.
class PortalThread : public QThread {
 public:
  PortalThread(const PrivateBus& bus, uint scheme) : bus_(bus), scheme_(scheme) {
    start();
    EXPECT_TRUE(WaitFor([this] { return ready_.load(); }));
  }
  ~PortalThread() override {
    quit();
    wait();
  }
  void Announce(const char* space, const char* key, uint scheme) const {
    QMetaObject::invokeMethod(
        portal_,
        [=] {
          QDBusMessage signal = QDBusMessage::createSignal(QLatin1String(kPortalPath),
                                                           QLatin1String(kPortalInterface),
                                                           QStringLiteral("SettingChanged"));
          signal << QString::fromLatin1(space) << QString::fromLatin1(key)
                 << QVariant::fromValue(QDBusVariant(scheme));
          EXPECT_TRUE(QDBusConnection(QStringLiteral("portal")).send(signal));
        },
        Qt::BlockingQueuedConnection);
  }

 protected:
  void run() override {
    Portal portal(scheme_);
    QDBusConnection connection = bus_.Connect("portal");
    connection.registerVirtualObject(QLatin1String(kPortalPath), &portal);
    connection.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    portal_ = &portal;
    ready_ = true;
    exec();
    QDBusConnection::disconnectFromBus(QStringLiteral("portal"));
  }

 private:
  const PrivateBus& bus_;
  uint scheme_;
  Portal* portal_ = nullptr;
  std::atomic<bool> ready_ = false;
};

bool WindowsAreDark() {
  return ThemeColors(QApplication::palette()).dark;
}

class PortalTest : public ::testing::Test {
 protected:
  PortalTest() { EXPECT_TRUE(bus.runs()) << "dbus-daemon does not start"; }
  ~PortalTest() override {
    QDBusConnection::disconnectFromBus(QStringLiteral("program"));
    ApplyTheme(*static_cast<QApplication*>(QCoreApplication::instance()), Theme::Light);
  }

  PrivateBus bus;
};

TEST_F(PortalTest, ADarkDesktopMakesWindowsDarkAndChangesWithIt) {
  const PortalThread desktop(bus, 1);
  ThemeFollower theme;
  theme.FollowDesktop(bus.Connect("program"));
  EXPECT_TRUE(WaitFor([] { return WindowsAreDark(); }));
  Settle();  // the program runs
  desktop.Announce("org.freedesktop.appearance", "color-scheme", 2);
  EXPECT_TRUE(WaitFor([] { return !WindowsAreDark(); }));
  desktop.Announce("org.freedesktop.appearance", "color-scheme", 1);
  EXPECT_TRUE(WaitFor([] { return WindowsAreDark(); }));
  desktop.Announce("org.freedesktop.appearance", "accent-color", 0);
  desktop.Announce("org.gnome.desktop", "color-scheme", 0);
  Settle();
  EXPECT_TRUE(WindowsAreDark()) << "other settings are none of it";
}

TEST_F(PortalTest, AChoiceOverridesTheDesktop) {
  const PortalThread desktop(bus, 1);
  ThemeFollower theme;
  theme.FollowDesktop(bus.Connect("program"));
  theme.Choose(LookChoice::Light);
  EXPECT_FALSE(WindowsAreDark());
  desktop.Announce("org.freedesktop.appearance", "color-scheme", 2);
  desktop.Announce("org.freedesktop.appearance", "color-scheme", 1);
  Settle();
  EXPECT_FALSE(WindowsAreDark());
  theme.Choose(LookChoice::Dark);
  EXPECT_TRUE(WindowsAreDark());
  theme.Choose(LookChoice::Desktop);
  EXPECT_TRUE(WaitFor([] { return WindowsAreDark(); }));
}

TEST_F(PortalTest, ADesktopWithoutAPortalIsLight) {
  ThemeFollower theme;
  theme.FollowDesktop(bus.Connect("program"));
  EXPECT_FALSE(WindowsAreDark());
  theme.FollowDesktop(QDBusConnection(QStringLiteral("no such bus")));
  EXPECT_FALSE(WindowsAreDark());
}

class DesktopWindowTest : public WindowTest {
 protected:
  void Choose(const char* menuItem) {
    shell().Choose(*Shell::FindMenuItem(menuItem));
    Settle();
  }
  static bool Drop(QWidget& widget, const QMimeData& data) {
    // As the toolkit does: the widget first, then what it stands in, until somebody takes it.
    for (QWidget* at = &widget; at != nullptr; at = at->parentWidget()) {
      if (!at->acceptDrops()) continue;
      QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(at, &enter);
      if (!enter.isAccepted()) continue;
      QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
      QCoreApplication::sendEvent(at, &drop);
      Settle();
      return drop.isAccepted();
    }
    return false;
  }
  static void HoldFile(QMimeData& data, const std::filesystem::path& file) {
    data.setUrls({QUrl::fromLocalFile(ToQt(file.string()))});
    data.setText(ToQt("file://" + file.string()));
  }
};

TEST_F(DesktopWindowTest, AParameterFileIsDroppedOnTheMainWindow) {
  std::ofstream(host.folder / "a.prm", std::ios::binary) << "Bore = 4.5\r\n";
  QMimeData data;
  HoldFile(data, host.folder / "a.prm");
  ExpectBox("1 Records Read");
  EXPECT_TRUE(Drop(windows->main(), data));
  EXPECT_EQ(program->context().block.Bore, 4.5);
  EXPECT_EQ(FromQt(windows->main().windowTitle()), "VELDOX-Math-Formula-Calculator - a.prm");
}

TEST_F(DesktopWindowTest, ATextBoxLeavesAFileToItsWindow) {
  Choose("Notes");
  std::ofstream(host.folder / "a.prm", std::ios::binary) << "Bore = 4.5\r\nNotes = of the file\r\n";
  QMimeData data;
  HoldFile(data, host.folder / "a.prm");
  ExpectBox("2 Records Read");
  EXPECT_TRUE(Drop(Child(windows->main(), "Text22"), data));
  EXPECT_EQ(Model<TextControl>("Main.Text22").text(), "of the file");
  // A screen that reads no files takes none, neither as a file nor as its name.
  QWidget& engine = Open("CubicInch");
  EXPECT_FALSE(Drop(Child(engine, "Text1"), data));
  EXPECT_EQ(Model<Field>("Form1.Text1").text(), "4.5");
}

TEST_F(DesktopWindowTest, AGraphFileIsDroppedOnTheGrapher) {
  QWidget& grapher = Open("GRAPHER");
  QMimeData data;
  HoldFile(data, std::filesystem::path(VELDOX_SOURCE_DIR) / "fuzz/seeds/graph_script/curves.txt");
  ExpectBox("16 Records Read");
  EXPECT_TRUE(Drop(grapher, data));
  EXPECT_FALSE(program->grapher().plot().series().empty());
}

TEST_F(DesktopWindowTest, SeveralFilesAndDistantOnesAreNotTaken) {
  QMimeData several;
  several.setUrls(
      {QUrl::fromLocalFile(QStringLiteral("/a")), QUrl::fromLocalFile(QStringLiteral("/b"))});
  EXPECT_FALSE(Drop(windows->main(), several));
  QMimeData distant;
  distant.setUrls({QUrl(QStringLiteral("https://example.org/a.prm"))});
  EXPECT_FALSE(Drop(windows->main(), distant));
  QMimeData words;
  words.setText(QStringLiteral("4.5"));
  EXPECT_FALSE(Drop(windows->main(), words));
}

TEST_F(DesktopWindowTest, TheTitleMarksWhatHasChanged) {
  QWidget& engine = Open("CubicInch");
  EXPECT_EQ(FromQt(windows->main().windowTitle()), "VELDOX-Math-Formula-Calculator");
  TypeText(Child(engine, "Text1"), "4");
  EXPECT_EQ(FromQt(windows->main().windowTitle()), "VELDOX-Math-Formula-Calculator *");
}

TEST_F(DesktopWindowTest, LightAndDarkAreChosenInTheMenu) {
  Choose("Look_Dark");
  EXPECT_TRUE(WindowsAreDark());
  EXPECT_TRUE(windows->main().ActionOf(*Shell::FindMenuItem("Look_Dark"))->isChecked());
  EXPECT_FALSE(windows->main().ActionOf(*Shell::FindMenuItem("Look_Light"))->isChecked());
  Choose("Look_Light");
  EXPECT_FALSE(WindowsAreDark());
}

TEST_F(DesktopWindowTest, AWindowOpensWhereItWasClosed) {
  QWidget& engine = Open("CubicInch");
  const QSize own = engine.size();
  engine.move(33, 44);
  engine.resize(own.width() - 60, own.height() - 50);
  Settle();
  ClickOn(Child(engine, "subend"));
  const WindowPlace place = shell().settings().places.at("Form1");
  EXPECT_EQ(place, (WindowPlace{33, 44, own.width() - 60, own.height() - 50, false}));
  engine.move(0, 0);
  EXPECT_EQ(Open("CubicInch").pos(), QPoint(33, 44));
  // A size of its own is not remembered: letters may be larger the next time.
  engine.resize(own);
  Settle();
  ClickOn(Child(engine, "subend"));
  EXPECT_EQ(shell().settings().places.at("Form1").width, 0);
}

TEST_F(DesktopWindowTest, APlaceBeyondTheDesktopIsNotTaken) {
  QWidget window;
  window.resize(300, 200);
  window.move(10, 20);
  PutInPlace(window, {5000, 5000, 0, 0, false});
  EXPECT_EQ(window.pos(), QPoint(10, 20));
  // One that lies over the edge comes in.
  PutInPlace(window, {kScreenWidth - 100, 40, 0, 0, false});
  EXPECT_EQ(window.pos(), QPoint(kScreenWidth - 300, 40));
  PutInPlace(window, {0, 0, 9999, 9999, false});
  EXPECT_LE(window.width(), kScreenWidth);
}

TEST_F(DesktopWindowTest, RecentFilesStandInTheFileMenu) {
  QAction* first = windows->main().ActionOf(*Shell::FindMenuItem("Recent(0)"));
  EXPECT_FALSE(first->isVisible());
  std::ofstream(host.folder / "a.prm", std::ios::binary) << "Bore = 4.5\r\n";
  ExpectBox("1 Records Read");
  shell().OpenFile(host.folder / "a.prm");
  EXPECT_TRUE(first->isVisible());
  EXPECT_TRUE(first->text().startsWith(QStringLiteral("&1  a.prm")));
  ExpectBox("1 Records Read");
  first->trigger();
}

TEST(Handbook, IsFoundBesideAnInstalledProgramAndInTheBuildsFolder) {
  const QTemporaryDir folder;
  const auto make = [&](const char* name) {
    const QString file = folder.filePath(QLatin1String(name));
    QDir().mkpath(QFileInfo(file).path());
    QFile made(file);
    EXPECT_TRUE(made.open(QIODevice::WriteOnly));
    return file;
  };
  QDir().mkpath(folder.filePath(QStringLiteral("usr/bin")));
  EXPECT_EQ(FindHandbook(folder.filePath(QStringLiteral("usr/bin"))), QString());
  const QString installed = make("usr/share/veldox/handbook/handbook.md");
  EXPECT_EQ(FindHandbook(folder.filePath(QStringLiteral("usr/bin"))), installed);
  const QString built = make("tree/docs/handbook.md");
  EXPECT_EQ(FindHandbook(folder.filePath(QStringLiteral("tree/build/check/bin"))), built);
}

TEST(Handbook, ShowsItsChaptersAndPicturesThatFit) {
  const QTemporaryDir folder;
  QImage wide(2000, 100, QImage::Format_RGB32);
  wide.fill(Qt::red);
  EXPECT_TRUE(wide.save(folder.filePath(QStringLiteral("wide.png"))));
  QFile file(folder.filePath(QStringLiteral("handbook.md")));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("# Book\n\nwords\n\n## First\n\n![wide](wide.png)\n\n### Part\n\n## Second\n\nend\n");
  file.close();
  HandbookWindow window(file.fileName());
  window.show();
  Settle();
  QStringList chapters;
  for (int i = 0; i < window.chapters().count(); ++i) chapters += window.chapters().item(i)->text();
  EXPECT_EQ(chapters, QStringList({QStringLiteral("Book"), QStringLiteral("First"),
                                   QStringLiteral("Second")}));
  auto& text = const_cast<HandbookText&>(window.text());
  const QVariant picture =
      text.loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("wide.png")));
  EXPECT_EQ(picture.value<QImage>().width(), 800);
  EXPECT_TRUE(text.toPlainText().contains(QStringLiteral("words")));
}

}  // namespace
}  // namespace veldox::testing
