#include "odd_texts.h"

#include <array>

namespace norvane {

QString Odd_Letter(Chance& chance) {
  static constexpr std::array kLetters{"é", "ß", "Ω", "ж", "٣", "½", "漢", "😀"};
  return chance.One_Of(kLetters);
}

QString Odd_Text(Chance& chance) {
  static constexpr std::array kTexts{"80",  "-18",    "12.5",  "12,5",     "0.035",   "0,035",
                                     "1e3", "-0",     "+7",    "007",      "1.2.3",   ".",
                                     "",    " 20",    "20 mm", "½\"",      "1 1/2\"", "&H10",
                                     "NaN", "\t5\n6", "٣٤",    "\u202E12", "😀",       "text"};
  constexpr int kSeldom = 20;
  if (chance.One_In(kSeldom)) return "8." + QString(5000, '7');
  if (chance.One_In(kSeldom)) return QString("8") + QChar(QChar::Null) + "1";
  if (chance.One_In(kSeldom)) return QString(QChar(0xD83D));  // half of a letter
  if (chance.One_In(2)) return QString::number(chance.Between(-300, 9999) / 10.0);
  return chance.One_Of(kTexts);
}

QString Runaway_Number(Chance& chance) {
  static constexpr std::array kNumbers{"40000", "-40000", "1E+20", "99999999999999"};
  return chance.One_Of(kNumbers);
}

}  // namespace norvane
