#pragma once

#include <QStackedWidget>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "core/shell.h"
#include "ui/face.h"

class QAction;
class QMenu;

namespace veldox {

class MenuRows;
class TitleArea;

/// The main form: menu in rows, sliding title, launcher, option panels, help strip.
class MainWindow : public QWidget, public ShellFace {
 public:
  explicit MainWindow(Shell& shell);
  ~MainWindow() override;

  FaceSet& faces() { return faces_; }
  MenuRows& menu() { return *menu_; }
  TitleArea& titleArea() { return *title_; }
  /// The action of a menu item; menus on the way to it are filled when they are not yet.
  QAction* ActionOf(const MenuItem& item);

  /// What is done when the appearance of all screens has changed.
  void SetLookListener(std::function<void()> listener) { lookChanged_ = std::move(listener); }
  /// What is done when windows are to be light or dark otherwise.
  void SetThemeListener(std::function<void()> listener) { themeChanged_ = std::move(listener); }
  /// Fills the window below its menu anew where it is to look otherwise.
  void SetAppearance(const Appearance& appearance);

  void MenuChanged() override;
  void AppearanceChanged() override;
  void LookChanged() override;
  void TitleChanged() override;
  void Ended() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  class PanelFace;

  QAction* MakeAction(const MenuItem& item, QWidget* owner);
  void Fill(QMenu& menu, std::string_view name);
  void UpdateAction(QAction& action, const MenuItem& item);
  void BuildBody();
  void BuildPages();
  /// A report of the main form, over the whole room.
  QWidget* BuildReport(ReportBox& box);
  QWidget* BuildPanel(PanelFace& panel);
  void ShowPanel(PanelFace& panel);

  Shell& shell_;
  FaceSet faces_;
  MenuRows* menu_;
  QWidget* body_ = nullptr;
  TitleArea* title_ = nullptr;
  QStackedWidget* pages_ = nullptr;
  std::vector<std::unique_ptr<PanelFace>> panels_;
  std::function<void()> lookChanged_;
  std::function<void()> themeChanged_;
  QSize ownSize_;  ///< what it takes itself
};

}  // namespace veldox
