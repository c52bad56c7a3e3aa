#include "core/company_panel.h"

#include "core/bad_records.h"
#include "core/files.h"
#include "core/text.h"

namespace veldox {

namespace {

constexpr const char* kSaveFilter =
    "Text Files (All Files (*.*)|*.*|Customer Data Files (*.dcn)|*.dcn";
constexpr const char* kLoadFilter =
    "Text Files (All Files (*.*)|*.*|Company Name Data Files (*.dcn)|*.dcn";
constexpr int kCompanyFilterIndex = 2;
/// The most of a line that a box shows, in characters.
constexpr std::size_t kShownCharacters = 500;

std::string BadRecord(int number, std::string_view line) {
  return "Bad or Invalid Record Read #" + std::to_string(number) + " ->>> " +
         Clipped(line, kShownCharacters);
}

}  // namespace

CompanyPanel::CompanyPanel(Screen& screen) : ScreenPart(screen) {
  SetFrames({&CompanyFrame});
  SetAreOptions();
}

void CompanyPanel::Open() {
  SetTexts(Texts());
  Show();
  Text94.Focus();
}

CompanyTexts CompanyPanel::Texts() const {
  const ParameterBlock& b = block();
  return {b.CompanyName, b.CompanyAddress, b.CompanyCity, b.CompanyPhone, b.CompanyWebSite};
}

void CompanyPanel::SetTexts(const CompanyTexts& texts) {
  ParameterBlock& b = block();
  b.CompanyName = texts[0];
  b.CompanyAddress = texts[1];
  b.CompanyCity = texts[2];
  b.CompanyPhone = texts[3];
  b.CompanyWebSite = texts[4];
  for (std::size_t i = 0; i < texts.size(); ++i) Fields()[i]->SetText(texts[i]);
}

void CompanyPanel::Typed(const Control& control) {
  if (control.frame() != &CompanyFrame) return;
  SetTexts({Text94.text(), Text95.text(), Text96.text(), Text97.text(), Text98.text()});
}

void CompanyPanel::Save() {
  Host& host = screen().context().host;
  const auto path = host.AskFile(
      {FileDialog::Kind::Save, kSaveFilter, kCompanyFilterIndex, host.ProgramFolder()});
  if (!path) throw CommandError(ErrorKind::Cancelled, "");
  SaveFile(*path, ComposeCompanyFile(Texts()));
}

void CompanyPanel::Load() {
  Host& host = screen().context().host;
  const auto path = host.AskFile(
      {FileDialog::Kind::Open, kLoadFilter, kCompanyFilterIndex, host.ProgramFolder()});
  if (!path) throw CommandError(ErrorKind::Cancelled, "");
  const std::string text = DecodeText(LoadFile(*path));
  BadRecords bad(host, screen().context().rules.messages().MessageTitle,
                 [](int count, const std::string& first) {
                   return std::to_string(count) +
                          " more records of this file are bad or invalid. The first of them:\r\n" +
                          first;
                 });
  CompanyTexts texts = Texts();
  ReadCompanyFile(text, PathText(path->filename()), texts, [&](int number, std::string_view line) {
    bad.Tell(BadRecord(number, line), {Button::OK});
  });
  bad.TellFurther();
  SetTexts(texts);
}

CompanyPlacePanel::CompanyPlacePanel(Screen& screen) : ScreenPart(screen) {
  SetFrames({&Frame95});
  SetAreOptions();
}

void CompanyPlacePanel::Open() {
  Show();
  Option4.buttons().at(static_cast<std::size_t>(std::max(0, Option4.chosen())))->Focus();
}

}  // namespace veldox
