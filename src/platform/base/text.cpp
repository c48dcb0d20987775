// Numbers in text, read and written independently of the machine's regional settings.
#include "platform/base/text.h"

#include "platform/base/runtime_error.h"
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <system_error>

namespace zv {
namespace {

bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }
bool isBlank(QChar c) { return c == u' ' || c == u'\t'; }
bool isExponentSign(QChar c) { return c == u'e' || c == u'E' || c == u'd' || c == u'D'; }
bool isSign(QChar c) { return c == u'+' || c == u'-'; }

/// The digit's value in that base, -1 if it is none.
int digitValue(QChar c, int base) {
    int value = -1;
    if (isDigit(c))
        value = c.unicode() - u'0';
    else if (c.toUpper() >= u'A' && c.toUpper() <= u'F')
        value = c.toUpper().unicode() - u'A' + 10;
    return value < base ? value : -1;
}

/// The value of "digits[.digits][E[sign]digits]"; infinite if it is too large.
double parsePlain(const std::string& digits) {
    double value = 0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        const auto exponent = digits.find('E');
        const bool tiny = exponent != std::string::npos && digits.compare(exponent + 1, 1, "-") == 0;
        return tiny ? 0 : std::numeric_limits<double>::infinity();
    }
    return value;
}

/// Hexadecimal or octal digits as the platform reads them: up to 16 bits as a signed 16-bit number, then as 32 bits.
std::optional<double> parseRadix(QStringView digits, int base) {
    if (digits.isEmpty()) return std::nullopt;
    double value = 0;
    for (const QChar c : digits) {
        const int digit = digitValue(c, base);
        if (digit < 0) return std::nullopt;
        value = value * base + digit;
    }
    if (value > 0xFFFFFFFFLL) return std::numeric_limits<double>::infinity();
    if (value <= 0xFFFF) return static_cast<qint16>(static_cast<quint16>(value));
    return static_cast<qint32>(static_cast<quint32>(value));
}

int radixOf(QStringView text) {
    if (text.size() < 2 || text[0] != u'&') return 0;
    const QChar letter = text[1].toUpper();
    return letter == u'H' ? 16 : letter == u'O' ? 8 : 0;
}

/// Reads a whole text by the forms of IsNumeric.
class NumberReader {
  public:
    explicit NumberReader(QStringView text) : text_(text) {}

    /// The number, infinite if it is too large, nothing if the text is none.
    std::optional<double> read() {
        while (!text_.isEmpty() && isBlank(text_.front())) text_ = text_.sliced(1);
        while (!text_.isEmpty() && isBlank(text_.back())) text_.chop(1);
        if (const int base = radixOf(text_)) return parseRadix(text_.sliced(2), base);
        if (!takePrefix() || !takeDigits() || !takeExponent() || !takeSuffix()) return std::nullopt;
        const double value = parsePlain(digits_);
        return negative_ && value != 0 ? -value : value;
    }

  private:
    bool atEnd() const { return at_ >= text_.size(); }
    QChar peek() const { return atEnd() ? QChar() : text_[at_]; }

    bool takePrefix() {
        for (; !atEnd(); ++at_) {
            if (isSign(peek()) && !signed_) {
                signed_ = true;
                negative_ = peek() == u'-';
            } else if (peek() == u'(' && !signed_) {
                signed_ = negative_ = open_ = true;
            } else if (peek() == u'$' && !currency_) {
                currency_ = true;
            } else if (!isBlank(peek())) {
                return true;
            }
        }
        return false;
    }

    bool takeDigits() {
        bool any = false;
        bool point = false;
        for (; !atEnd(); ++at_) {
            const QChar c = peek();
            if (isDigit(c)) {
                any = true;
                digits_ += c.toLatin1();
            } else if (c == u'.' && !point) {
                point = true;
                digits_ += '.';
            } else if (c != u',' || !any || point) {
                break;
            }
        }
        return any;
    }

    bool takeExponent() {
        if (!isExponentSign(peek())) return true;
        ++at_;
        digits_ += 'E';
        if (isSign(peek())) digits_ += text_[at_++].toLatin1();
        if (!isDigit(peek())) return false;
        while (isDigit(peek())) digits_ += text_[at_++].toLatin1();
        return true;
    }

    bool takeSuffix() {
        for (; !atEnd(); ++at_) {
            if (peek() == u')' && open_) {
                open_ = false;
            } else if (isSign(peek()) && !signed_) {
                signed_ = true;
                negative_ = peek() == u'-';
            } else if (!isBlank(peek())) {
                return false;
            }
        }
        return !open_;
    }

    QStringView text_;
    qsizetype at_ = 0;
    std::string digits_;
    bool signed_ = false, negative_ = false, open_ = false, currency_ = false;
};

/// The longest head of digits of that base, without blanks.
QStringView radixHead(QStringView text, int base) {
    qsizetype length = 0;
    while (length < text.size() && digitValue(text[length], base) >= 0) ++length;
    return text.first(length);
}

double checkedRange(double number, double lowest, double highest) {
    const double rounded = std::nearbyint(number);
    if (!(rounded >= lowest && rounded <= highest)) throw RuntimeError(6);
    return rounded;
}

} // namespace

bool IsNumeric(QStringView text) { return NumberReader(text).read().has_value(); }

double CDbl(QStringView text) {
    const auto value = NumberReader(text).read();
    if (!value) throw RuntimeError(13);
    if (std::isinf(*value)) throw RuntimeError(6);
    return *value;
}

double Val(QStringView source) {
    QString text;
    for (const QChar c : source)
        if (!isBlank(c) && c != u'\n') text += c;
    if (const int base = radixOf(text)) {
        const auto value = parseRadix(radixHead(QStringView(text).sliced(2), base), base);
        if (value && std::isinf(*value)) throw RuntimeError(6);
        return value.value_or(0);
    }
    const auto at = [&text](qsizetype i) { return i < text.size() ? text[i] : QChar(); };
    qsizetype i = isSign(at(0)) ? 1 : 0;
    std::string digits;
    bool fraction = false;
    for (; isDigit(at(i)) || (at(i) == u'.' && !fraction); ++i) {
        fraction = fraction || at(i) == u'.';
        digits += at(i).toLatin1();
    }
    if (digits.empty() || digits == ".") return 0;
    if (isExponentSign(at(i))) {
        const qsizetype first = isSign(at(i + 1)) ? i + 2 : i + 1;
        if (isDigit(at(first))) {
            digits += 'E';
            if (first == i + 2) digits += at(i + 1).toLatin1();
            for (i = first; isDigit(at(i)); ++i) digits += at(i).toLatin1();
            fraction = true;
        }
    }
    if (fraction && (at(i) == u'%' || at(i) == u'&')) throw RuntimeError(13);
    const double value = parsePlain(digits);
    if (std::isinf(value)) throw RuntimeError(6);
    return at(0) == u'-' && value != 0 ? -value : value;
}

QString CStr(double number) {
    if (number == 0) return QStringLiteral("0"); // also for a negative zero
    return QString::number(number, 'G', 15);
}

QString Str(double number) {
    QString text = CStr(number);
    const qsizetype first = text.startsWith(u'-') ? 1 : 0;
    if (QStringView(text).sliced(first).startsWith(u"0.")) text.remove(first, 1);
    return first == 0 ? u' ' + text : text;
}

QString Trim(QStringView text) {
    while (text.startsWith(u' ')) text = text.sliced(1);
    while (text.endsWith(u' ')) text.chop(1);
    return text.toString();
}

qint16 toInteger(double number) { return static_cast<qint16>(checkedRange(number, -32768, 32767)); }

qint32 toLong(double number) { return static_cast<qint32>(checkedRange(number, -2147483648.0, 2147483647.0)); }

std::optional<double> numberOf(QStringView text) {
    if (!IsNumeric(text)) return {};
    try {
        return Val(text);
    } catch (const RuntimeError&) {
        return {};
    }
}

} // namespace zv
