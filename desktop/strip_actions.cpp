#include "desktop/strip_actions.h"

#include <QtGui/QKeySequence>
#include <QtWidgets/QMessageBox>

#include "desktop/appearance.h"
#include "desktop/form_window.h"
#include "desktop/session.h"
#include "desktop/shot_log.h"
#include "program/program.h"

namespace quintara::desktop {
namespace {

constexpr int volumeStep = 20;  // percent

const char forgetQuestion[] =
    "The zoom, the volume, the strip, the trace and the places of the windows are kept from one start to the "
    "next. Forget them, so that all is as at the first start? The list of masters stays.";

}  // namespace

StripActions::StripActions(FormWindow& window, Session& session, Program& program, ShotLog& log)
    : window_(window), session_(session), program_(program), shotLog_(log) {
  for (QAction* action : {&trace, &mute}) action->setCheckable(true);
  const auto does = [this](QAction& action, const auto& work) {
    connect(&action, &QAction::triggered, this, work);
  };
  does(trace, [this] { Choose([](Settings& settings) { settings.trace = !settings.trace; }); });
  does(mute, [this] { Choose([](Settings& settings) { settings.mute = !settings.mute; }); });
  does(smaller, [this] {
    Choose([this](Settings& settings) { settings.zoom = session_.zoom().Smaller().factor(); });
  });
  does(larger,
       [this] { Choose([this](Settings& settings) { settings.zoom = session_.zoom().Larger().factor(); }); });
  does(fullScreen, [this] { session_.SwitchFullScreen(); });
  does(menu, [this] { OpenMenuAt(window_.mapToGlobal(window_.rect().bottomRight())); });
  does(log_, [this] { shotLog_.Open(window_.zoom()); });
  does(hide_, [this] { Choose([](Settings& settings) { settings.strip = !settings.strip; }); });
  does(forget_, [this] { ForgetAll(); });
  does(about_, [this] { ShowAbout(); });
  BindKeys();
  FillMenu();
  Follow();
}

void StripActions::BindKeys() {
  const struct {
    QAction& action;
    const char *key, *tip;
    bool isBound = true;  // else the window knows it by itself
  } rows[] = {{trace, "T", "Draw the paths of the shells"},
              {log_, "L", "Show a table of the shots of this game"},
              {mute, "V", "Silence the sounds"},
              {smaller, "Ctrl+-", "Make all windows smaller", false},
              {larger, "Ctrl++", "Make all windows larger", false},
              {fullScreen, "F11", "Fill the screen"},
              {menu, "F10", "Open the menu of this strip"},
              {hide_, "Ctrl+B", ""}};
  for (const auto& row : rows) {
    row.action.setToolTip(QString("%1 (%2)").arg(row.tip, row.key));
    if (!row.isBound) {
      row.action.setText(row.action.text() + '\t' + row.key);
      continue;
    }
    row.action.setShortcut(QKeySequence(row.key));
    row.action.setAutoRepeat(false);
    window_.addAction(&row.action);
  }
}

void StripActions::FillMenu() {
  FillVolumeMenu();
  menu_.addAction(&trace);
  menu_.addAction(&log_);
  menu_.addSeparator();
  menu_.addMenu(&volumeMenu_);
  menu_.addAction(&mute);
  menu_.addSeparator();
  menu_.addAction(&larger);
  menu_.addAction(&smaller);
  menu_.addAction(&fullScreen);
  menu_.addSeparator();
  menu_.addAction(&forget_);
  menu_.addAction(&hide_);
  menu_.addAction(&about_);
}

void StripActions::FillVolumeMenu() {
  for (int percent = Settings::loudest; percent > 0; percent -= volumeStep) {
    QAction* action = volumeMenu_.addAction(QString("%1 %").arg(percent));
    action->setCheckable(true);
    action->setData(percent);
    volumes_.push_back(action);
    connect(action, &QAction::triggered, this, [this, percent] {
      Choose([percent](Settings& settings) {
        settings.volume = percent;
        settings.mute = false;
      });
    });
  }
}

void StripActions::Follow() {
  const Settings& settings = session_.settings();
  trace.setChecked(settings.trace);
  mute.setChecked(settings.mute);
  for (QAction* action : volumes_) action->setChecked(action->data().toInt() == settings.volume);
  hide_.setText(settings.strip ? "Hide this strip (Ctrl+B shows it again)" : "Show the strip below the game");
}

void StripActions::OpenMenuAt(const QPoint& corner) {
  for (QMenu* each : {&menu_, &volumeMenu_}) each->setFont(ToQFont(Font{}, window_.zoom()));
  const QSize size = menu_.sizeHint();
  menu_.popup(corner - QPoint(size.width(), size.height()));
}

void StripActions::Choose(const std::function<void(Settings&)>& change) {
  Settings settings = session_.settings();
  change(settings);
  session_.Choose(settings);
}

void StripActions::ForgetAll() {
  auto* box = new QMessageBox(QMessageBox::Question, "Quintara", forgetQuestion,
                              QMessageBox::Yes | QMessageBox::No, &window_);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setDefaultButton(QMessageBox::No);
  box->setFont(ToQFont(Font{}, window_.zoom()));
  connect(box, &QMessageBox::finished, this, [this](int answer) {
    if (answer == QMessageBox::Yes) session_.Choose(Settings());
  });
  // The game goes on meanwhile.
  box->open();
}

// The window that the Help menu opens, too.
void StripActions::ShowAbout() {
  QuintaraForm& form = program_.quintara();
  session_.Run([&] { program_.scene().dispatcher().Run(form, [&form] { form.aboutItem.Click.Raise(); }); });
}

}  // namespace quintara::desktop
