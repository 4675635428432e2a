#include "desktop/desktop.h"

#include <QApplication>
#include <QClipboard>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFontDatabase>
#include <QLabel>
#include <QLocale>
#include <QMessageBox>
#include <QPixmapCache>
#include <QPushButton>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QScreen>
#include <QThread>
#include <QWindow>
#include <clocale>
#include <utility>

#include "desktop/form_view.h"
#include "desktop/main_view.h"
#include "desktop/placement.h"
#include "desktop/twips.h"
#include "desktop/views.h"
#include "frame/version.h"
#include "host/code_page.h"
#include "screen/warmt.h"
#include "totals/calculation_list.h"

namespace norvane {
namespace {

constexpr int kExitAfterRuntimeError = 3;

QMessageBox::Icon Icon_Of(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kExclamation:
      return QMessageBox::Warning;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
    case MessageIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

QString Shown(const std::string& bytes, int charset) {
  return QString::fromStdString(To_Utf8(bytes, charset));
}

/// What a screen reader tells of the sign beside a message.
QString Name_Of(QMessageBox::Icon icon) {
  switch (icon) {
    case QMessageBox::Information:
      return "Information";
    case QMessageBox::Warning:
      return "Warning";
    case QMessageBox::Question:
      return "Question";
    case QMessageBox::Critical:
      return "Error";
    case QMessageBox::NoIcon:
      break;
  }
  return {};
}

/// Shows a box, with words alone on its buttons, as on the program's own; the answer.
int Ask(QMessageBox& box) {
  if (auto* sign = box.findChild<QLabel*>("qt_msgboxex_icon_label")) {
    sign->setAccessibleName(Name_Of(box.icon()));
  }
  box.setTextFormat(Qt::PlainText);
  for (QAbstractButton* button : box.buttons()) button->setIcon({});
  return box.exec();
}

}  // namespace

Desktop::Desktop(const std::filesystem::path& folder, const SpreadsheetMaker& make_spreadsheet)
    : folder_(folder),
      files_(folder),
      spreadsheet_(make_spreadsheet(folder, busy_)),
      program_(*this) {
  // Qt never forgets the name of a picture that it kept of a part of a window, and there is one for
  // each part, size, state and palette. To paint a button anew takes some hundredths of a
  // millisecond.
  QPixmapCache::setCacheLimit(0);
  session_end_.setSingleShot(true);
  session_end_.callOnTimeout([this] { Close_One_More_Window(); });
  // Qt has given C functions the user's locale. The program asks Qt for the decimal sign; what a
  // library reads and writes by C functions is no text for the user, and has a point.
  std::setlocale(LC_NUMERIC, "C");
}

Desktop::~Desktop() {
  for (const auto& [form, view] : views_) {
    view->Detach();
    delete view;
  }
  qDeleteAll(unloaded_);
}

char Desktop::Decimal_Separator() const {
  // The program knows two spellings; any other sign is read and written as a point.
  return QLocale().decimalPoint() == QLatin1String(",") ? ',' : '.';
}

std::optional<std::vector<std::string>> Desktop::Font_Names() const {
  std::vector<std::string> names{
      kDefaultFontName};  // stands for whatever the font mapper gives for it
  for (const QString& family : QFontDatabase::families()) names.push_back(family.toStdString());
  return names;
}

DisplayArea Desktop::Available_Area() const {
  const QRect area = Work_Area();
  return {To_Twips(area.left()), To_Twips(area.top()), To_Twips(area.width()),
          To_Twips(area.height())};
}

QRect Desktop::Work_Area() const {
  std::vector<ScreenArea> screens;
  for (const QScreen* screen : QGuiApplication::screens()) {
    screens.push_back({screen->geometry(), screen->availableGeometry()});
  }
  return Available_Area_For(Main_Window_Frame(), screens);
}

FormView* Desktop::Main_Window() const {
  for (const auto& [form, view] : views_) {
    if (view->isVisible() && qobject_cast<MainView*>(view) != nullptr) return view;
  }
  return nullptr;
}

QRect Desktop::Main_Window_Frame() const {
  const FormView* main_window = Main_Window();
  return main_window == nullptr ? QRect() : main_window->windowHandle()->frameGeometry();
}

void Desktop::Form_Loaded(Form& form) { views_[&form] = Make_View(*this, form); }

void Desktop::Form_Unloaded(Form& form) {
  const auto entry = views_.find(&form);
  FormView* view = entry->second;
  views_.erase(entry);
  view->Detach();
  view->hide();
  unloaded_.push_back(view);
}

FormView* Desktop::View_Of(const Form& form) const {
  const auto entry = views_.find(&form);
  return entry == views_.end() ? nullptr : entry->second;
}

void Desktop::Run_Modal(Form& form) {
  QEventLoop loop;
  // The end of the program, and a failure, leave the loop with the form still there.
  const auto leave = qScopeGuard([&] {
    if (FormView* view = View_Of(form)) view->Leave_Modal();
  });
  View_Of(form)->Show_Modal(loop);
  Show_Changes();
  if (form.Shown() && !program_.Ended()) loop.exec();
}

void Desktop::Let_Events_Run() {
  Show_Changes();
  // What the user does meanwhile may come here again. Where all of it has queued up behind a slow
  // display, the calls would be nested as deep as the queue is long; the rest of it is left to an
  // outer call then.
  constexpr int kDeepest = 32;
  if (yields_ == kDeepest) return;
  const QScopedValueRollback<int> one_more(yields_, yields_ + 1);
  if (yields_ == 1) Wait_For_Exposure();
  QCoreApplication::processEvents();
}

void Desktop::Wait_For_Exposure() {
  constexpr int kPatience = 300;  // milliseconds
  const QDeadlineTimer patience(kPatience);
  const auto exposed = [this] {
    const QWidget* front = Front_Window();
    return front == nullptr || !front->isVisible() || front->isMinimized() ||
           front->windowHandle()->isExposed();
  };
  while (!exposed() && !patience.hasExpired()) {
    QCoreApplication::processEvents();
    QThread::msleep(1);
  }
}

void Desktop::Start() {
  Call([this] { program_.Main(); });
}

void Desktop::Answer(const UserEvent& event) {
  if (program_.Ended()) return;  // while its last message is still to be read
  if (may_leave_ && Leads_Out(event) && !may_leave_()) return;
  const bool is_place = event.action == UserAction::kMove || event.action == UserAction::kResize;
  if (!is_place) Tell_Where_Main_Window_Is();
  Call([&] { program_.Dispatch(event); });
}

void Desktop::Tell_Where_Main_Window_Is() {
  // Nobody tells when the window manager changes a frame, and the place goes by that. Maximised, a
  // window may move before its frame gets thinner.
  if (FormView* main_window = Main_Window()) main_window->Tell_Place_Anew();
}

void Desktop::Tick(TickTimer& timer) {
  if (program_.Ended()) return;
  Call([&] { program_.Tick(timer); });
}

void Desktop::Run(const std::function<void()>& procedure) {
  if (program_.Ended()) return;
  Call([&] { program_.Run(procedure); });
}

void Desktop::Fail() {
  if (program_.Ended()) return;  // while its last message is still to be read
  Call([this] { program_.Run([] { throw; }); });
}

void Desktop::Close_Front_Window() {
  QWidget* box = QApplication::activeModalWidget();
  QWidget* front = qobject_cast<QMessageBox*>(box) != nullptr ? box : Front_Window();
  if (front != nullptr) front->close();
}

void Desktop::End_Session() {
  constexpr int kAttempts = 8;
  windows_left_ = kAttempts;
  may_leave_ = nullptr;
  Close_One_More_Window();
}

void Desktop::Close_One_More_Window() {
  constexpr int kMoment = 20;  // milliseconds
  if (program_.Ended() && QApplication::activeModalWidget() == nullptr) return;
  // Asked for first: a window that is closed may open a box, and return when that is closed.
  session_end_.start(kMoment);
  if (busy_.Is_Painting()) return;
  if (windows_left_-- > 0) {
    Close_Front_Window();
  } else if (!program_.Ended()) {
    Call([this] { program_.Run([this] { program_.State().desk.Quit(); }); });
  } else {
    After_Program_Call();
  }
}

void Desktop::Call(const std::function<void()>& program_call) {
  {
    const QScopedValueRollback<int> one_more(calls_, calls_ + 1);
    program_call();
    After_Program_Call();
  }
  if (calls_ > 0) return;
  // Neither sooner, since an event further out may be one of such a window, nor at once, since this
  // event may be.
  for (FormView* view : std::exchange(unloaded_, {})) view->deleteLater();
}

void Desktop::After_Program_Call() {
  busy_.End();
  if (program_.Ended()) {
    for (const auto& [form, view] : views_) view->hide();
    QCoreApplication::exit(program_.Failed() ? kExitAfterRuntimeError : 0);
    return;
  }
  Show_Changes();
}

void Desktop::Decode_Anew_At_Need() {
  const int charset = program_.State().Text_Charset();
  if (std::exchange(shown_charset_, charset) == charset) return;
  for (const auto& [form, view] : views_) view->Decode_Anew();
}

void Desktop::Show_Changes() {
  Decode_Anew_At_Need();
  // Showing a window may load or unload nothing, but it may report events that do.
  std::vector<FormView*> views;
  for (const auto& [form, view] : views_) views.push_back(view);
  for (FormView* view : views) view->Show_Changes();
}

QString Desktop::Text(const std::string& bytes) const {
  return Shown(bytes, program_.State().Text_Charset());
}

QString Desktop::Text(TextId text) const { return Text(program_.State().Text(text)); }

QStringList Desktop::In_All_Languages(TextId text) const {
  const LanguageTables& languages = program_.State().languages;
  QStringList texts;
  for (int slot = 0; slot < LanguageTables::kSlots; ++slot) {
    if (!languages.Lang_Code[static_cast<std::size_t>(slot)]) continue;
    texts << Shown(languages.Text(slot, text), program_.State().Text_Charset(slot));
  }
  return texts;
}

QWidget* Desktop::Front_Window() const {
  const Form* active = program_.State().desk.Active();
  return active == nullptr ? nullptr : View_Of(*active);
}

MessageAnswer Desktop::Message(const UserMessage& message) {
  Show_Changes();
  QString lines = Shown(message.text, message.charset);
  lines.replace("\r\n", "\n").replace('\r', '\n');
  const bool yes_no = message.buttons == MessageButtons::kYesNo;
  QMessageBox box(
      Icon_Of(message.icon), Shown(message.title, message.charset), lines,
      yes_no ? QMessageBox::Yes | QMessageBox::No : QMessageBox::StandardButtons(QMessageBox::Ok),
      Front_Window());
  if (yes_no) box.setEscapeButton(QMessageBox::No);
  const int answer = Ask(box);
  if (!yes_no) return MessageAnswer::kOk;
  return answer == QMessageBox::Yes ? MessageAnswer::kYes : MessageAnswer::kNo;
}

void Desktop::Runtime_Error(int number, const std::string& words) {
  const QString text =
      QString("Run-time error '%1':\n\n%2").arg(number).arg(QString::fromStdString(words));
  QMessageBox box(QMessageBox::Critical, kTitle, text, QMessageBox::Ok, Front_Window());
  box.setEscapeButton(QMessageBox::Ok);
  // The program ends, but the user's lines need not be lost with it. The message stays: on many
  // desktops what was copied is gone with the program that copied it.
  if (Has_Saved_Lines(program_.State())) {
    QPushButton* copy = box.addButton("Copy saved lines", QMessageBox::ActionRole);
    copy->disconnect();
    QObject::connect(copy, &QPushButton::clicked, copy, [this, copy] {
      QApplication::clipboard()->setText(Text(Saved_Lines_As_Text(program_.State())));
      copy->setEnabled(false);
    });
  }
  Ask(box);
}

}  // namespace norvane
