// Whatever a script does, the program must be in the same state with windows and without.

#include "ui/window_driver.h"

#include <QImage>
#include <array>
#include <random>
#include <sstream>

#include "script/script_host.h"
#include "tests/ui/window_test.h"

namespace veldox::testing {
namespace {

/// A program under a script's hands.
struct Hands {
  explicit Hands(const std::filesystem::path& folder, bool withWindows)
      : host({folder, DecimalMark::Point, ClockTime{2024, 5, 6, 7, 8, 9}}), program(host) {
    if (withWindows) {
      driver = std::make_unique<WindowDriver>(program.shell());
    } else {
      driver = std::make_unique<ModelDriver>(program.shell());
    }
    program.Start();
  }

  Control& Find(const std::string& name) {
    Control* control = program.shell().FindControl(name);
    if (control == nullptr) throw std::runtime_error("no control " + name);
    return *control;
  }
  TextControl& Text(const std::string& name) { return dynamic_cast<TextControl&>(Find(name)); }
  void Choose(const char* item) { driver->ChooseMenu(*Shell::FindMenuItem(item)); }

  /// Everything of the program that a script can ask for.
  std::string State() {
    std::ostringstream out;
    std::vector<Screen*> screens{&program.shell()};
    screens.insert(screens.end(), program.shell().screens().begin(),
                   program.shell().screens().end());
    for (const Screen* screen : screens) {
      out << screen->name() << (screen->visible() ? " open" : " closed") << " focus "
          << (screen->focus() == nullptr ? "none" : screen->focus()->name()) << '\n';
      for (const Control* control : screen->controls()) {
        out << "  " << control->name() << ' ' << control->caption() << ' ' << control->Shown()
            << control->enabled() << static_cast<int>(control->mark());
        if (const auto* text = dynamic_cast<const TextControl*>(control))
          out << ' ' << text->text();
        if (const auto* box = dynamic_cast<const CheckBox*>(control)) out << ' ' << box->on();
        if (const auto* group = dynamic_cast<const OptionGroup*>(control)) {
          out << ' ' << group->chosen();
        }
        if (const auto* list = dynamic_cast<const ComboList*>(control))
          out << ' ' << list->chosen();
        out << '\n';
      }
    }
    const ParameterBlock& block = program.context().block;
    out << block.DataChanged << ' ' << block.OptionFieldActive << ' ' << block.FieldMouseDown << ' '
        << block.MetricSwitch << ' ' << block.CubicInches << ' ' << block.Notes << '\n';
    for (const std::string& message : host.messages) out << message << '\n';
    return out.str();
  }

  ScriptHost host;
  Program program;
  std::unique_ptr<Driver> driver;
};

/// The first line in which two texts differ.
std::string Difference(const std::string& without, const std::string& with) {
  std::istringstream a(without);
  std::istringstream b(with);
  std::string lineA;
  std::string lineB;
  while (std::getline(a, lineA) && std::getline(b, lineB)) {
    if (lineA != lineB) return "without windows: " + lineA + "\nwith windows:    " + lineB;
  }
  return without == with ? std::string() : "one of them has more lines";
}

class WindowDriverTest : public ::testing::Test {
 protected:
  /// Does the same with both and compares what has come of it.
  void Both(const std::string& what, const std::function<void(Hands&)>& act) {
    for (Hands* hands : {&model, &real}) act(*hands);
    const std::string difference = Difference(model.State(), real.State());
    ASSERT_EQ(difference, "") << "after " << what;
  }

  TemporaryFolder folder;
  Hands model{folder.path(), false};
  Hands real{folder.path(), true};
};

TEST_F(WindowDriverTest, PressEntersAFieldThatNobodyHasEnteredYet) {
  Both("menu", [](Hands& hands) { hands.Choose("CubicInch"); });
  Both("press", [](Hands& hands) { hands.driver->Press(hands.Find("Form1.Text1"), U'5'); });
  EXPECT_EQ(real.Text("Form1.Text1").text(), "5");
  Both("press", [](Hands& hands) { hands.driver->Press(hands.Find("Form1.Text1"), U'6'); });
  EXPECT_EQ(real.Text("Form1.Text1").text(), "56");
}

TEST_F(WindowDriverTest, ClosedScreenIsWorkedWithoutItsWindow) {
  Both("set", [](Hands& hands) { hands.driver->Set(hands.Text("Form1.Text1"), "4.5"); });
  Both("click", [](Hands& hands) { hands.driver->Click(hands.Find("Form1.Command1")); });
  EXPECT_EQ(real.Text("Form1.Text1").text(), "4.5");
}

TEST_F(WindowDriverTest, PictureShowsTheWindowAndIsRefusedWithoutOne) {
  const std::filesystem::path file = folder / "main.png";
  EXPECT_FALSE(model.driver->Picture(model.program.shell(), file));
  ASSERT_TRUE(real.driver->Picture(real.program.shell(), file));
  const QImage picture(ToQt(file.string()));
  EXPECT_GE(picture.width(), 700);
  EXPECT_FALSE(real.driver->Picture(*real.program.shell().FindScreen("Form1"), file));
  EXPECT_THROW(real.driver->Picture(real.program.shell(), folder / "none/main.png"), ScriptError);
}

TEST_F(WindowDriverTest, NotesAreTypedOverSeveralLines) {
  Both("menu", [](Hands& hands) { hands.Choose("Notes"); });
  Both("set", [](Hands& hands) { hands.driver->Set(hands.Text("Main.Text22"), "one\r\ntwo"); });
  Both("press", [](Hands& hands) { hands.driver->Press(hands.Find("Main.Text22"), kEnter); });
  Both("press", [](Hands& hands) { hands.driver->Press(hands.Find("Main.Text22"), U'3'); });
  Both("press", [](Hands& hands) { hands.driver->Press(hands.Find("Main.Text22"), kBackspace); });
  Both("click", [](Hands& hands) { hands.driver->Click(hands.Find("Main.Command11")); });
  EXPECT_EQ(real.program.context().block.Notes, "one\r\ntwo\r\n");
}

TEST_F(WindowDriverTest, AnyHandlingEndsInTheSameState) {
  // Fixed seeds: the same handling in every run.
  for (const unsigned seed : {1U, 2U, 3U}) {
    std::mt19937 random(seed);
    const auto pick = [&](const auto& list) -> const auto& {
      return list[random() % list.size()];
    };
    const std::array<std::string, 14> fields{
        "Form1.Text1", "Form1.Text3",  "Form1.Text2",  "Form1.Text4",  "Form1.Text7",
        "Form1.Text6", "Form1.Text10", "Form1.Text11", "Form1.Text13", "Form1.Text32",
        "Form1.Text5", "Form1.Text19", "Main.Text22",  "Main.Text13"};
    const std::array<std::string, 14> buttons{
        "Form1.Command1", "Form1.Command2",   "Form1.Command3",  "Form1.Command5",
        "Form1.Command6", "Form1.Command22",  "Form1.Command16", "Form1.Check1",
        "Form1.Check3",   "Form1.Option1(5)", "Form1.subend",    "Form1.Option2(2)",
        "Main.Command12", "Form15.subend"};
    const std::array<const char*, 5> items{"CubicInch", "CubicInch", "About", "Notes", "Metric"};
    const std::array<std::string, 6> texts{"4.125", "", "x", "8", "-1.5", "6500"};
    const std::array<std::vector<Key>, 6> typed{
        std::vector<Key>{U'4', U'.', U'2'}, {kBackspace}, {U'7', kTab}, {U'-', U'x', U'1', kEnter},
        {U'1', U'.', U'.', U'5'},           {kTab}};
    for (int i = 0; i < 150; ++i) {
      const auto kind = random() % 10;
      const std::string& field = pick(fields);
      const std::string& button = pick(buttons);
      const char* item = pick(items);
      const std::string& text = pick(texts);
      const std::vector<Key>& keys = pick(typed);
      const std::string step = "seed " + std::to_string(seed) + " step " + std::to_string(i);
      switch (kind) {
        case 0: Both(step + " menu " + item, [&](Hands& hands) { hands.Choose(item); }); break;
        case 1:
        case 2:
          Both(step + " set " + field + ' ' + text,
               [&](Hands& hands) { hands.driver->Set(hands.Text(field), text); });
          break;
        case 3:
        case 4:
          Both(step + " type " + field,
               [&](Hands& hands) { hands.driver->Type(hands.Text(field), keys); });
          break;
        case 5:
          Both(step + " leave " + field,
               [&](Hands& hands) { hands.driver->Leave(hands.Text(field)); });
          break;
        case 6:
          Both(step + " press " + field,
               [&](Hands& hands) { hands.driver->Press(hands.Find(field), keys.front()); });
          break;
        case 7:
          Both(step + " hover " + button, [&](Hands& hands) {
            Control& control = hands.Find(button);
            hands.driver->Hover(control.screen(), &control);
          });
          break;
        case 8:
          Both(step + " press space " + button,
               [&](Hands& hands) { hands.driver->Press(hands.Find(button), U' '); });
          break;
        default:
          Both(step + " click " + button,
               [&](Hands& hands) { hands.driver->Click(hands.Find(button)); });
          break;
      }
      if (HasFatalFailure()) return;
    }
  }
}

}  // namespace
}  // namespace veldox::testing
