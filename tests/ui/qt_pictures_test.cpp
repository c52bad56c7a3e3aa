#include "ui/qt_pictures.h"

#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <fstream>
#include <iterator>

#include "tests/ui/window_test.h"

namespace veldox::testing {
namespace {

std::string Load(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

QImage Decode(const std::string& bytes) {
  return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()),
                          static_cast<int>(bytes.size()));
}

/// Presses the window's keys for a picture of itself.
void PressPictureKeys(QWidget& window) {
  auto* keys = window.findChild<QShortcut*>();
  ASSERT_NE(keys, nullptr);
  EXPECT_EQ(keys->key(), QKeySequence(Qt::ALT | Qt::Key_J));
  QMetaObject::invokeMethod(keys, "activated");
  Settle();
}

class PicturesTest : public WindowTest {
 protected:
  void DrawCurve() {
    Open("GRAPHER");
    ClickOn(Child(*windows->WindowOf(program->grapher()), "Command2"));
  }
  QWidget& Grapher() { return *windows->WindowOf(program->grapher()); }
  /// Saves the graph by the command under a name. @return the file's bytes
  std::string SaveAs(const char* name) {
    host.AnswerFile(host.folder / name);
    ClickOn(Child(Grapher(), "Command3"));
    return Load(host.folder / name);
  }
};

TEST_F(PicturesTest, GraphsAreSavedAtTheSizeOfTheOptions) {
  DrawCurve();
  shell().block().CustomGraphWidth = 8;
  shell().block().CustomGraphHeight = 5;
  for (const char* name : {"graph.bmp", "graph.png", "graph.jpg"}) {
    const QImage image = Decode(SaveAs(name));
    EXPECT_EQ(image.size(), QSize(800, 500)) << name;
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white)) << name;
  }
}

TEST_F(PicturesTest, EachExtensionGivesItsFormat) {
  DrawCurve();
  EXPECT_EQ(SaveAs("graph.bmp").substr(0, 2), "BM");
  EXPECT_EQ(SaveAs("graph.png").substr(1, 3), "PNG");
  const std::string jpeg = SaveAs("graph.jpg");
  EXPECT_EQ(jpeg.substr(0, 2), "\xFF\xD8");
  EXPECT_NE(jpeg.find("\xFF\xC0"), std::string::npos) << "baseline";
  EXPECT_EQ(jpeg.find("\xFF\xC2"), std::string::npos) << "not progressive";
  EXPECT_EQ(SaveAs("graph.pdf").substr(0, 5), "%PDF-");
  const std::string svg = SaveAs("graph.svg");
  EXPECT_NE(svg.find("width=\"600\" height=\"600\""), std::string::npos);
  EXPECT_NE(svg.find(">&lt;--- RPM</text>"), std::string::npos);
  EXPECT_NE(svg.find("stroke=\"#0000ff\""), std::string::npos) << "the curve is a line";
}

TEST_F(PicturesTest, AnSvgOfTheNarrowestLimitsHoldsNumbersOnly) {
  DrawCurve();
  const std::vector<GraphPoint> points = {{0, 0}, {1e-300, 5e-324}, {1e300, 1e-300}};
  const GraphCurve curve{"", points, {}};
  GraphFrame frame;
  frame.range = {0, 1e-300, 0, 1e-300};
  program->grapher().DrawGraph(frame, {&curve, 1});
  const std::string svg = SaveAs("narrow.svg");
  EXPECT_NE(svg.find("<polyline"), std::string::npos);
  for (const char* none : {"nan", "inf"}) EXPECT_EQ(svg.find(none), std::string::npos) << none;
}

TEST_F(PicturesTest, PicturesOfGraphsAreLightInADarkWindow) {
  ApplyTheme(*qApp, Theme::Dark);
  DrawCurve();
  const QImage image = Decode(SaveAs("graph.png"));
  ApplyTheme(*qApp, Theme::Light);
  EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
}

TEST_F(PicturesTest, TheReadOutGoesOnAfterAPictureOfAnotherSize) {
  DrawCurve();
  Grapher().grab();
  const SurfaceRect before = program->grapher().frame();
  const double units = program->grapher().plot().XUnitsPerPixel;
  SaveAs("graph.png");
  EXPECT_EQ(program->grapher().frame().width, before.width);
  EXPECT_EQ(program->grapher().plot().XUnitsPerPixel, units);
}

TEST_F(PicturesTest, TheScreenIsSavedAsJpegUnderItsTagAndTheDate) {
  DrawCurve();
  ClickOn(Child(Grapher(), "Save_Form_JPG"));
  const std::filesystem::path file = host.folder / "CarGraph_Friday_May_17_2024_14_3_9.jpg";
  const QImage image = Decode(Load(file));
  EXPECT_EQ(image.size(), Grapher().size() * Grapher().devicePixelRatio());
}

TEST_F(PicturesTest, AltJSavesEachScreenAndTellsTheFile) {
  QWidget& window = Open("CubicInch");
  PressPictureKeys(window);
  const std::string name = "CubicIn_Friday_May_17_2024_14_3_9.jpg";
  EXPECT_EQ(Decode(Load(host.folder / name)).size(), window.size());
  bool told = false;
  for (const QLabel* label : window.findChildren<QLabel*>()) {
    told = told || label->text() == ToQt("Saved as " + name);
  }
  EXPECT_TRUE(told);
}

TEST_F(PicturesTest, AltJSavesTheMainWindow) {
  PressPictureKeys(windows->main());
  EXPECT_EQ(Decode(Load(host.folder / "Main_Friday_May_17_2024_14_3_9.jpg")).size(),
            windows->main().size());
  EXPECT_EQ(Model<Label>("Main.Label77").caption(), "Saved as Main_Friday_May_17_2024_14_3_9.jpg");
}

TEST_F(PicturesTest, OnTheGrapherTheKeysAreThoseOfItsCommand) {
  Open("GRAPHER");
  const QKeySequence keys(Qt::ALT | Qt::Key_J);
  for (const QShortcut* shortcut : Grapher().findChildren<QShortcut*>()) {
    EXPECT_NE(shortcut->key(), keys) << "the command has them alone";
  }
  EXPECT_EQ(Child<QPushButton>(Grapher(), "Save_Form_JPG").shortcut(), keys);
}

TEST_F(PicturesTest, AFileThatIsNoPictureLeavesTheSurface) {
  DrawCurve();
  const std::filesystem::path file = host.folder / "wrong.bmp";
  std::ofstream(file) << "no picture";
  host.AnswerFile(file);
  ExpectBox("The file is no picture that can be shown, or a part of it is missing.");
  ClickOn(Child(Grapher(), "Command5"));
  EXPECT_EQ(program->grapher().plot().series().size(), 2U);
}

TEST_F(PicturesTest, APictureFileIsShown) {
  Open("GRAPHER");
  QImage red(20, 20, QImage::Format_RGB32);
  red.fill(Qt::red);
  const std::filesystem::path file = host.folder / "red.bmp";
  ASSERT_TRUE(red.save(ToQt(file.string())));
  host.AnswerFile(file);
  ClickOn(Child(Grapher(), "Command5"));
  const QImage shown = Child(Grapher(), "Picture1").grab().toImage();
  EXPECT_EQ(shown.pixelColor(shown.width() / 2, shown.height() / 2), QColor(Qt::red));
}

TEST_F(PicturesTest, CopyPutsTheGraphOnTheClipboard) {
  DrawCurve();
  ClickOn(Child(Grapher(), "Copy_Picture"));
  EXPECT_EQ(QApplication::clipboard()->image().size(), QSize(600, 600));
}

TEST_F(PicturesTest, PrintFormsIsThereForTheScreensThatExist) {
  int enabled = 0;
  for (const MenuItem& item : Shell::Menu()) {
    if (item.parent != "Print") continue;
    EXPECT_EQ(item.kind, MenuKind::PrintScreen) << item.name;
    const bool exists = shell().FindScreen(item.screen) != nullptr;
    EXPECT_EQ(shell().MenuEnabled(item), exists) << item.name;
    enabled += exists ? 1 : 0;
  }
  EXPECT_GE(enabled, 3);
  ExpectBox("There is no printer here that a screen can be printed on.");
  shell().Choose(*Shell::FindMenuItem("Print1"));
  ExpectBox("There is no printer here that can be set up.");
  shell().Choose(*Shell::FindMenuItem("Printer"));
}

TEST_F(PicturesTest, AWindowIsPrintedThoughItWasNeverOpened) {
  Screen& about = *shell().FindScreen("Form15");
  ASSERT_EQ(windows->WindowOf(about), nullptr);
  const std::filesystem::path file = host.folder / "page.pdf";
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(ToQt(file.string()));
  PictureRequest request;
  request.of = PictureRequest::Of::Window;
  request.screen = "Form15";
  windows->pictures().PrintOn(printer, request);
  ASSERT_NE(windows->WindowOf(about), nullptr);
  EXPECT_FALSE(windows->WindowOf(about)->isVisible());
  const std::string pdf = Load(file);
  EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
  EXPECT_NE(pdf.find("/Subtype /Image"), std::string::npos) << "a bitmap of the window";
}

TEST_F(PicturesTest, TheGraphIsPrintedAsLinesAndNotAsABitmap) {
  DrawCurve();
  const std::filesystem::path file = host.folder / "page.pdf";
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(ToQt(file.string()));
  PictureRequest request;
  request.screen = "Form8";
  windows->pictures().PrintOn(printer, request);
  const std::string pdf = Load(file);
  EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
  EXPECT_EQ(pdf.find("/Subtype /Image"), std::string::npos);
}

TEST_F(PicturesTest, WithoutWindowsPicturesAreRefused) {
  windows.reset();
  ExpectBox("Pictures can be made only while windows are shown.");
  program->grapher().SetVisible(true);
  static_cast<Command&>(*program->grapher().Find("Command2")).Click();
  static_cast<Command&>(*program->grapher().Find("Save_Picture_Image")).Click();
}

TEST_F(PicturesTest, GraphOptionsTakeTheLaunchersPlaceAndReachTheGraph) {
  DrawCurve();
  shell().Choose(*Shell::FindMenuItem("Graph"));
  Settle();
  QWidget& main = windows->main();
  EXPECT_TRUE(Child(main, "DrawLn").isVisible());
  EXPECT_LE(main.height(), kScreenHeight);
  EXPECT_FALSE(Child(main, "Launch_CubicInch").isVisible());
  // Each "Enter" stands in the frame of the fields that it takes.
  for (const auto& [enter, field] :
       {std::pair{"Command5", "Text14"}, {"Command3", "Text19"}, {"Command4", "Text21"}}) {
    EXPECT_EQ(Child(main, enter).parentWidget(), Child(main, field).parentWidget()) << enter;
  }
  host.AnswerColor(Color{200, 30, 40}.Value());
  ClickOn(Child(main, "BGColor"));
  const QImage shown = Child(Grapher(), "Picture1").grab().toImage();
  EXPECT_EQ(shown.pixelColor(1, 1), QColor(200, 30, 40));
  ClickOn(Child(main, "Command2"));
  EXPECT_FALSE(Child(main, "DrawLn").isVisible());
  EXPECT_TRUE(Child(main, "Launch_CubicInch").isVisible());
}

}  // namespace
}  // namespace veldox::testing
