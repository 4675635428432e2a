#include "calc/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>

namespace norvane {
namespace {

// Sign, 17 digits, point, and an exponent of three digits with its letter and sign.
using ScientificText = std::array<char, 32>;

std::string_view View(const ScientificText& text, const std::to_chars_result& result) {
  return {text.data(), static_cast<std::size_t>(result.ptr - text.data())};
}

}  // namespace

Decimal::Decimal(double value, int digits) {
  ScientificText text;
  Read_Scientific(View(text, std::to_chars(text.data(), text.data() + text.size(), value,
                                           std::chars_format::scientific, digits - 1)));
}

Decimal::Decimal(float value, int digits) {
  ScientificText text;
  Read_Scientific(View(text, std::to_chars(text.data(), text.data() + text.size(), value,
                                           std::chars_format::scientific)));
  if (digits_.size() > static_cast<std::size_t>(digits)) {
    Read_Scientific(View(text, std::to_chars(text.data(), text.data() + text.size(), value,
                                             std::chars_format::scientific, digits - 1)));
  }
}

void Decimal::Read_Scientific(std::string_view text) {
  digits_.clear();
  negative_ = text.front() == '-';
  const std::size_t e = text.find('e');
  for (const char c : text.substr(0, e)) {
    if (c != '-' && c != '.') digits_.push_back(c);
  }
  digits_.erase(digits_.find_last_not_of('0') + 1);
  if (digits_.empty()) {
    negative_ = false;
    return;
  }
  const bool small = text[e + 1] == '-';
  std::from_chars(text.data() + e + 2, text.data() + text.size(), exponent_);
  exponent_ = (small ? -exponent_ : exponent_) + 1;
}

void Decimal::Round_To_Decimals(int decimals) {
  const int kept = exponent_ + decimals;
  if (kept >= static_cast<int>(digits_.size())) return;
  const bool up = kept >= 0 && digits_[static_cast<std::size_t>(kept)] >= '5';
  digits_.resize(static_cast<std::size_t>(std::max(kept, 0)));
  if (up) {
    const std::size_t last = digits_.find_last_not_of('9');
    if (last == std::string::npos) {
      digits_.assign(1, '1');
      ++exponent_;
    } else {
      digits_.resize(last + 1);
      ++digits_[last];
    }
  }
  digits_.erase(digits_.find_last_not_of('0') + 1);
  if (digits_.empty()) negative_ = false;
}

std::string Decimal::Whole_Part() const {
  if (exponent_ <= 0) return {};
  std::string whole = digits_.substr(0, static_cast<std::size_t>(exponent_));
  whole.resize(static_cast<std::size_t>(exponent_), '0');
  return whole;
}

std::string Decimal::Fraction() const {
  if (exponent_ <= 0) return std::string(static_cast<std::size_t>(-exponent_), '0') + digits_;
  const auto whole = static_cast<std::size_t>(exponent_);
  return whole < digits_.size() ? digits_.substr(whole) : std::string();
}

std::string Decimal::Bare(int widest, char decimal_separator) const {
  std::string text(negative_ ? "-" : "");
  if (exponent_ > widest) {
    text += digits_.front();
    if (digits_.size() > 1) text += decimal_separator + digits_.substr(1);
    const std::string exponent = std::to_string(exponent_ - 1);
    return text + "E+" + (exponent.size() < 2 ? "0" : "") + exponent;
  }
  const std::string whole = Whole_Part();
  text += whole.empty() ? "0" : whole;
  const std::string fraction = digits_.empty() ? std::string() : Fraction();
  if (!fraction.empty()) text += decimal_separator + fraction;
  return text;
}

std::string Decimal::Under_Mask(std::string_view mask, char decimal_separator) const {
  const std::size_t point = std::min(mask.find('.'), mask.size());
  const std::size_t decimals = mask.size() - std::min(point + 1, mask.size());
  const auto least = static_cast<std::size_t>(
      std::count(mask.begin(), mask.begin() + static_cast<std::ptrdiff_t>(point), '0'));

  Decimal rounded = *this;
  rounded.Round_To_Decimals(static_cast<int>(decimals));
  std::string whole = rounded.Whole_Part();
  if (whole.size() < least) whole.insert(0, least - whole.size(), '0');
  std::string text = (rounded.negative_ ? "-" : "") + whole;
  if (decimals > 0) {
    std::string fraction = rounded.digits_.empty() ? std::string() : rounded.Fraction();
    fraction.resize(decimals, '0');
    text += decimal_separator + fraction;
  }
  return text;
}

}  // namespace norvane
