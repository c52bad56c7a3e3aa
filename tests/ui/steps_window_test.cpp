// Undo and redo by the keys, and what windows tell of a command before it is clicked.

#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>

#include "core/pick_list.h"
#include "tests/ui/window_test.h"
#include "ui/field_edit.h"
#include "ui/preview_line.h"

namespace veldox::testing {
namespace {

class StepsWindowTest : public WindowTest {
 protected:
  StepsWindowTest() : window(Open("CubicInch")) {}

  FieldEdit& Edit(const char* name) { return static_cast<FieldEdit&>(Child(window, name)); }
  std::string Text(const char* name) {
    return Model<Field>((std::string("Form1.") + name).c_str()).text();
  }
  QLabel& Line() { return Child<QLabel>(window, "PreviewLine"); }
  History& history() { return program->context().history; }
  void Enter(const char* name) {
    Edit(name).setFocus(Qt::TabFocusReason);
    Settle();
  }
  void Undo(QWidget& widget) {
    PressKey(widget, Qt::Key_Z, QStringLiteral("\x1a"), Qt::ControlModifier);
  }

  QWidget& window;
};

TEST_F(StepsWindowTest, CtrlZTakesBackTheTypingFirstAndThenTheSteps) {
  Enter("Text1");
  TypeText(Edit("Text1"), "4.25");
  Enter("Text3");
  TypeText(Edit("Text3"), "3.5");
  EXPECT_EQ(Text("Text3"), "3.5");
  Undo(Edit("Text3"));
  EXPECT_EQ(Text("Text3"), "3.25") << "the typing into the field that has the focus";
  EXPECT_EQ(Text("Text1"), "4.25");
  Undo(Edit("Text3"));
  EXPECT_EQ(Text("Text1"), "4.0") << "the step before it";
  PressKey(Edit("Text3"), Qt::Key_Z, QStringLiteral("\x1a"),
           Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Text("Text1"), "4.25");
  EXPECT_EQ(Edit("Text1").text(), QStringLiteral("4.25"));
  Undo(Edit("Text3"));
  PressKey(Edit("Text3"), Qt::Key_Y, QStringLiteral("\x19"), Qt::ControlModifier);
  EXPECT_EQ(Text("Text1"), "4.25");
}

TEST_F(StepsWindowTest, TypingOfBeforeIsAStepWhenTheFieldIsEnteredAgain) {
  Enter("Text1");
  TypeText(Edit("Text1"), "4.25");
  Enter("Text3");
  Enter("Text1");
  EXPECT_EQ(history().done(), 1U);
  Undo(Edit("Text1"));
  EXPECT_EQ(Text("Text1"), "4.0");
  EXPECT_EQ(history().done(), 0U);
}

TEST_F(StepsWindowTest, TheKeysWorkOnACommandAsWell) {
  auto& button = Child<QPushButton>(window, "Command1");
  Enter("Text1");
  TypeText(Edit("Text1"), "4.125");
  ClickOn(button);
  EXPECT_EQ(Text("Text6"), "347.4650");
  history().Undo();
  Settle();
  EXPECT_EQ(Edit("Text6").text(), QStringLiteral("326.7256")) << "the window follows";
  history().Redo();
  Settle();
  EXPECT_EQ(Edit("Text6").text(), QStringLiteral("347.4650"));
}

TEST_F(StepsWindowTest, ALineTellsWhatACommandWouldChange) {
  Enter("Text1");
  TypeText(Edit("Text1"), "4.125");
  auto& button = Child<QPushButton>(window, "Command1");
  EnterWidget(button);
  Settle();
  const std::string told = FromQt(Line().text());
  EXPECT_NE(told.find("Engine Size 326.7256 to 347.4650 cu in"), std::string::npos) << told;
  EXPECT_NE(told.find("Bore Stroke Ratio 1.23077 to 1.269231"), std::string::npos) << told;
  EXPECT_EQ(Text("Text6"), "326.7256");
  EXPECT_EQ(Edit("Text6").text(), QStringLiteral("326.7256"));
  // The larger change comes first: 6.3 percent of the size, 3.1 of the ratio.
  EXPECT_LT(told.find("Engine Size"), told.find("Bore Stroke Ratio"));
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(&button, &leave);
  EXPECT_EQ(Line().text(), QString());
}

TEST_F(StepsWindowTest, ALineTellsWhyACommandCannot) {
  Enter("Text2");
  TypeText(Edit("Text2"), "0");
  EnterWidget(Child<QPushButton>(window, "Command3"));
  Settle();
  EXPECT_TRUE(FromQt(Line().text()).starts_with("\"Number Of Cylinders\" is 0, and "))
      << FromQt(Line().text());
  EXPECT_TRUE(host.messages.empty());
}

TEST_F(StepsWindowTest, WhatDoesNotFitIsCounted) {
  Enter("Text1");
  TypeText(Edit("Text1"), "4.125");
  auto& command = Model<Command>("Form1.Command1");
  const Preview preview = PreviewOf(command);
  ASSERT_EQ(preview.changes.size(), 7U);
  const std::string narrow =
      TellPreview(preview, [](const std::string& line) { return line.size() < 60; });
  EXPECT_EQ(narrow, "Piston Area 12.56637 to 13.36404 sq in, and 6 more");
}

TEST_F(StepsWindowTest, NoPreviewKeepsThePointerWaiting) {
  for (Screen* screen : shell().screens()) {
    for (Control* control : screen->controls()) {
      auto* command = dynamic_cast<Command*>(control);
      if (command == nullptr || !command->isBuilt() || !command->enabled()) continue;
      // Tests run unoptimised beside each other; the program is some ten times as fast.
      EXPECT_LT(PreviewOf(*command).took, std::chrono::milliseconds(160))
          << screen->name() << '.' << command->name();
    }
  }
}

TEST_F(StepsWindowTest, TheListOfTheStepsGoesBackByAClick) {
  Enter("Text1");
  TypeText(Edit("Text1"), "4.125");
  ClickOn(Child<QPushButton>(window, "Command1"));
  shell().Choose(*Shell::FindMenuItem("Steps"));
  Settle();
  auto& list = Model<PickList>("Main.StepList");
  ASSERT_EQ(list.rows().size(), 3U);
  list.Choose(0);
  Settle();
  EXPECT_EQ(Edit("Text1").text(), QStringLiteral("4.0"));
  EXPECT_EQ(Edit("Text6").text(), QStringLiteral("326.7256"));
}

TEST_F(StepsWindowTest, ThePanelsOfTheMainWindowTellToo) {
  shell().Choose(*Shell::FindMenuItem("Graph"));
  Settle();
  QWidget& main = windows->main();
  const auto& line = Child<QLabel>(main, "PreviewLine");
  const auto tells = [&](const char* command) {
    EnterWidget(Child<QPushButton>(main, command));
    Settle();
    return FromQt(line.toolTip());
  };
  EXPECT_EQ(tells("Graph_Head"), "Graph Heads -- Is OFF to Graph Heads -- Is ON");
  EXPECT_EQ(tells("FontColor"), "It asks for a colour.");
  Model<Command>("Main.Command4").Click();
  EXPECT_EQ(tells("Command4"), "It changes nothing.") << "the widths are what they were";
  Model<Field>("Main.Text21").SetText("3");
  EXPECT_EQ(tells("Command4"), "It changes values that no field shows.");
  EXPECT_EQ(tells("Command2"), "") << "what closes tells nothing";
}

}  // namespace
}  // namespace veldox::testing
