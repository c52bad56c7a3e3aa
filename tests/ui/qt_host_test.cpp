#include "ui/qt_host.h"

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <fstream>

#include "tests/ui/window_test.h"

namespace veldox::testing {
namespace {

constexpr const char* kFilter =
    "Text Files (*.txt)|*.txt|All Files (*.*)|*.*|Parameter Files (*.prm)|*.prm";

class QtHostTest : public ::testing::Test {
 protected:
  /// Does something with the next dialog that opens.
  template <class Dialog>
  void WhenOpen(std::function<void(Dialog&)> act) {
    auto* timer = new QTimer(&owner_);
    QObject::connect(timer, &QTimer::timeout, &owner_, [timer, act] {
      auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      timer->stop();
      act(*dialog);
    });
    timer->start(5);
  }

  static void Accept(QFileDialog& dialog, const QString& name) {
    dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(name);
    QMetaObject::invokeMethod(&dialog, "accept");
  }

  QObject owner_;
  QtHost host;
  TemporaryFolder folder;
};

TEST_F(QtHostTest, BoxShowsWhatItIsGivenAndItsFirstButtonIsTheDefault) {
  WhenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_EQ(box.text(), QStringLiteral("first line\nsecond <b>line</b>"));
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.icon(), QMessageBox::Question);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Yes));
    box.button(QMessageBox::No)->click();
  });
  EXPECT_EQ(host.Ask({Icon::Question,
                      "title",
                      "first line\r\nsecond <b>line</b>",
                      {Button::Yes, Button::No, Button::Cancel}}),
            Button::No);
}

TEST_F(QtHostTest, EnterGivesTheDefaultButtonAndEscapeNeverStandsForNo) {
  WhenOpen<QMessageBox>([](QMessageBox& box) { PressKey(box, Qt::Key_Return); });
  EXPECT_EQ(host.Ask({Icon::Question, "t", "x", {Button::OK, Button::Cancel}}), Button::OK);
  WhenOpen<QMessageBox>([](QMessageBox& box) { PressKey(box, Qt::Key_Escape); });
  EXPECT_EQ(host.Ask({Icon::Question, "t", "x", {Button::OK, Button::Cancel}}), Button::Cancel);
  // Yes and No alone have to be answered.
  WhenOpen<QMessageBox>([](QMessageBox& box) {
    PressKey(box, Qt::Key_Escape);
    EXPECT_TRUE(box.isVisible());
    box.close();
    EXPECT_TRUE(box.isVisible());
    box.button(QMessageBox::Yes)->click();
  });
  EXPECT_EQ(host.Ask({Icon::Question, "t", "x", {Button::Yes, Button::No}}), Button::Yes);
  WhenOpen<QMessageBox>([](QMessageBox& box) { PressKey(box, Qt::Key_Escape); });
  EXPECT_EQ(host.Ask({Icon::Warning, "t", "x", {Button::OK}}), Button::OK);
}

TEST_F(QtHostTest, LongTextStaysOnTheScreen) {
  std::string text;
  for (int i = 0; i < 200; ++i) text += "one more line of a long message\r\n";
  WhenOpen<QMessageBox>([](QMessageBox& box) {
    EXPECT_LE(box.height(), kScreenHeight);
    EXPECT_TRUE(box.button(QMessageBox::Ok)->isVisible());
    EXPECT_LE(box.button(QMessageBox::Ok)->geometry().bottom(), box.height());
    box.button(QMessageBox::Ok)->click();
  });
  EXPECT_EQ(host.Ask({Icon::Warning, "t", text, {Button::OK}}), Button::OK);
}

TEST_F(QtHostTest, FileDialogOffersTheFiltersAndTheChosenOne) {
  WhenOpen<QFileDialog>([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters(),
              (QStringList{QStringLiteral("Text Files (*.txt)"), QStringLiteral("All Files (*.*)"),
                           QStringLiteral("Parameter Files (*.prm)")}));
    EXPECT_EQ(dialog.selectedNameFilter(), QStringLiteral("Parameter Files (*.prm)"));
    EXPECT_EQ(dialog.directory().absolutePath(), ToQt(folder.path().string()));
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
    dialog.reject();
  });
  EXPECT_EQ(host.AskFile({FileDialog::Kind::Open, kFilter, 3, folder.path()}), std::nullopt);
}

TEST_F(QtHostTest, SavedFileGetsTheEndingOfTheChosenFilter) {
  WhenOpen<QFileDialog>([](QFileDialog& dialog) { Accept(dialog, QStringLiteral("engine")); });
  EXPECT_EQ(host.AskFile({FileDialog::Kind::Save, kFilter, 3, folder.path()}),
            folder / "engine.prm");
  WhenOpen<QFileDialog>([](QFileDialog& dialog) { Accept(dialog, QStringLiteral("engine.dat")); });
  EXPECT_EQ(host.AskFile({FileDialog::Kind::Save, kFilter, 3, folder.path()}),
            folder / "engine.dat");
}

TEST_F(QtHostTest, FileThatIsThereIsAskedAboutUnderItsWholeName) {
  std::ofstream(folder / "engine.prm") << "old";
  WhenOpen<QFileDialog>([this](QFileDialog& dialog) {
    WhenOpen<QMessageBox>([this](QMessageBox& box) {
      EXPECT_TRUE(box.text().startsWith(QStringLiteral("engine.prm already exists")));
      // The dialog comes back when the file is not to be replaced.
      WhenOpen<QFileDialog>([](QFileDialog& again) { again.reject(); });
      box.button(QMessageBox::No)->click();
    });
    Accept(dialog, QStringLiteral("engine"));
  });
  EXPECT_EQ(host.AskFile({FileDialog::Kind::Save, kFilter, 3, folder.path()}), std::nullopt);
}

TEST_F(QtHostTest, ProgramFolderIsAFolderToWriteTo) {
  const std::filesystem::path place = host.ProgramFolder();
  EXPECT_TRUE(std::filesystem::is_directory(place));
  std::ofstream probe(place / "veldox-test-probe");
  EXPECT_TRUE(probe.good());
  probe.close();
  std::filesystem::remove(place / "veldox-test-probe");
}

TEST_F(QtHostTest, ScreenIsMeasuredInItsOwnPixels) {
  const ScreenSize size = host.MeasureScreen();
  EXPECT_EQ(size.width, kScreenWidth);
  EXPECT_EQ(size.height, kScreenHeight);
  EXPECT_EQ(size.dpi, 96);
}

}  // namespace
}  // namespace veldox::testing
