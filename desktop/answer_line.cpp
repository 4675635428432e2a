#include "desktop/answer_line.h"

#include <QHBoxLayout>

#include "desktop/desktop.h"
#include "desktop/own_texts.h"
#include "screen/answer.h"

namespace norvane {
namespace {

constexpr int kAnswerWidth = 180;  // room for most; longer ones grow
constexpr int kRemarkWidth = 250;

void Show(QLabel& label, const QString& text) {
  if (label.text() == text) return;
  label.setText(text);
  const int needed = label.sizeHint().width();
  if (needed > label.width()) label.setFixedWidth(needed);
}

void Enlarge(QLabel& label, QFont font, qreal times, bool bold) {
  font.setPointSizeF(font.pointSizeF() * times);
  font.setBold(bold);
  if (label.font() != font) label.setFont(font);
}

QString Remark_Of(const Desktop& desktop, const Answer& answer) {
  if (answer.heat_loss) {
    if (!answer.saving) return Own_Text(desktop, TextId::kNoSaving);
    return desktop.Text(TextId::kSaving) + ' ' + desktop.Text(*answer.saving);
  }
  if (!answer.next_size) return {};
  return QString("%1: %2 %3")
      .arg(Own_Text(desktop, TextId::kNextSize))
      .arg(*answer.next_size)
      .arg(desktop.Text(answer.unit));
}

}  // namespace

AnswerLine::AnswerLine(QWidget* parent)
    : QWidget(parent), answer_(new QLabel), remark_(new QLabel) {
  answer_->setObjectName("answer");
  remark_->setObjectName("answer_remark");
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(answer_);
  row->addWidget(remark_);
  row->addStretch();
  for (QLabel* label : {answer_, remark_}) label->setTextFormat(Qt::PlainText);
  answer_->setFixedSize(kAnswerWidth, kHeight);
  remark_->setFixedSize(kRemarkWidth, kHeight);
}

void AnswerLine::Follow(Desktop& desktop, Warmt& warmt, const QFont& font) {
  Enlarge(*answer_, font, 1.7, true);
  Enlarge(*remark_, font, 1.3, false);
  const auto answer = Answer_On_Screen(desktop.program().State(), warmt);
  Show(*answer_,
       answer ? desktop.Text(answer->value) + ' ' + desktop.Text(answer->unit) : QString());
  Show(*remark_, answer ? Remark_Of(desktop, *answer) : QString());
}

}  // namespace norvane
