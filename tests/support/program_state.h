#pragma once

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "core/panel.h"
#include "core/pick_list.h"
#include "graph/drawing.h"
#include "program/program.h"

namespace veldox {

/// All of a program's state that can be seen from outside, a text a control.
struct ProgramState {
  enum class Part {
    All,   ///< to the last bit
    Data,  ///< texts, captions, boxes, options, reports, graphs and shared values
  };

  ProgramState(Program& program, Part part) {
    std::vector<Screen*> screens = program.shell().screens();
    screens.push_back(&program.shell());
    for (Screen* screen : screens) {
      // What is entered in a tool is no data.
      if (part == Part::Data && screen->IsTool()) continue;
      if (part == Part::All) {
        names.push_back(screen->name());
        const auto nameOf = [](const Control* control) {
          return control == nullptr ? std::string("-") : control->name();
        };
        std::string told = nameOf(screen->focus()) + '|' + nameOf(screen->NextCalculation()) +
                           (screen->visible() ? "|visible" : "|closed");
        for (const Panel* panel : screen->openPanels()) told += '|' + panel->name();
        texts.push_back(std::move(told));
      }
      names.push_back(screen->name() + " units");
      texts.emplace_back(screen->metric() ? "metric" : "US");
      for (const Control* control : screen->controls()) {
        names.push_back(screen->name() + '.' + control->name());
        texts.push_back(TextOf(*control, part));
      }
    }
    const ParameterBlock& block = program.context().block;
    names.emplace_back("numbers");
    texts.emplace_back(reinterpret_cast<const char*>(static_cast<const SharedNumbers*>(&block)),
                       sizeof(SharedNumbers));
    names.emplace_back("written file");
    texts.push_back(program.shell().parameterFile().Compose().bytes);
    names.emplace_back("texts");
    texts.push_back(block.Notes + '|' + block.CamFileTitle + '|' + block.CurrentFileName + '|' +
                    block.CamFileHeader + '|' + block.CompanyName + '|' + block.ParameterFileName);
    names.emplace_back("title");
    texts.push_back(program.shell().WindowTitle());
    const PlotEngine& plot = program.grapher().plot();
    names.emplace_back("graph");
    std::string graph = plot.PointsAsCsv() + std::to_string(plot.lines().size());
    for (const std::string& title : plot.Titles()) graph += '|' + title;
    texts.push_back(std::move(graph));
    if (part == Part::All) {
      names.emplace_back("marks");
      texts.push_back(std::to_string(block.DataChanged) + '|' +
                      std::to_string(block.OptionFieldActive) + '|' + block.CurrentScreenTag);
    }
  }

  std::vector<std::string> names;
  std::vector<std::string> texts;

  /// The first place where two states differ; empty where they are the same.
  static std::string Difference(const ProgramState& before, const ProgramState& after) {
    if (before.texts.size() != after.texts.size()) return "other controls";
    for (std::size_t i = 0; i < before.texts.size(); ++i) {
      if (before.texts[i] == after.texts[i]) continue;
      if (before.names[i] == "numbers") return "a number of the shared values";
      return before.names[i] + ": \"" + before.texts[i].substr(0, 300) + "\" became \"" +
             after.texts[i].substr(0, 300) + '"';
    }
    return {};
  }

 private:
  static std::string TextOf(const Control& control, Part part) {
    std::string text;
    const bool isHelp = &control == control.screen().HelpPlace();
    const auto* box = dynamic_cast<const ReportBox*>(&control);
    if (part == Part::All || !isHelp) {
      if (box == nullptr || part == Part::All) text = ShownText(control);
      text += '|' + control.caption();
    }
    if (box != nullptr) text += '|' + box->report();
    if (part == Part::Data) return text;
    text += '|' + control.help() + (control.visible() ? "|v" : "|h") +
            (control.enabled() ? "e" : "d") + std::to_string(static_cast<int>(control.mark()));
    if (box != nullptr) text += '|' + box->sentence();
    if (const auto* field = dynamic_cast<const TextControl*>(&control)) {
      text += std::to_string(static_cast<int>(field->rule()));
    }
    if (const auto* list = dynamic_cast<const ComboList*>(&control)) {
      text += '|' + std::to_string(list->rows().size()) + '|' + std::to_string(list->chosen());
    }
    if (const auto* list = dynamic_cast<const PickList*>(&control)) {
      text += '|' + std::to_string(list->current()) + '|' + std::to_string(list->edition()) + '|' +
              std::to_string(list->place().picked) + '|' + std::to_string(list->offers());
    }
    return text;
  }
};

/// Shows a command to the user: its screen is open, and so are the page and panel it stands in.
inline void BringIntoReach(Shell& shell, Command& command) {
  Screen& screen = command.screen();
  if (&screen != &shell && !screen.visible()) shell.Open(screen);
  while (screen.topPanel() != nullptr) screen.topPanel()->PutAway();
  std::vector<Frame*> around;
  for (Frame* frame = command.frame(); frame != nullptr; frame = frame->frame()) {
    around.push_back(frame);
  }
  for (Frame* frame : around) {
    if (auto* panel = dynamic_cast<Panel*>(frame)) {
      panel->Open();
    } else if (auto* page = dynamic_cast<ScreenPage*>(frame)) {
      page->Open();
    } else {
      frame->SetVisible(true);
    }
  }
}

}  // namespace veldox
