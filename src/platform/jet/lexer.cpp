// Splits a statement into tokens.
#include "platform/jet/lexer.h"

#include "platform/jet/syntax_error.h"
#include <algorithm>
#include <charconv>

namespace zv::jet {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }
bool isNameStart(char c) {
    return (upper(c) >= 'A' && upper(c) <= 'Z') || c == '_' || static_cast<unsigned char>(c) >= 0x80;
}
bool isNamePart(char c) { return isNameStart(c) || isDigit(c); }

} // namespace

bool sameName(std::string_view first, std::string_view second) {
    return std::ranges::equal(first, second, {}, upper, upper);
}

bool Token::is(std::string_view keyword) const {
    return kind == TokenKind::Name && !bracketed && sameName(raw, keyword);
}

Token Lexer::take(TokenKind kind, std::size_t length) {
    Token token;
    token.kind = kind;
    token.raw = rest_.substr(0, length);
    rest_.remove_prefix(token.raw.size());
    return token;
}

Token Lexer::next() {
    while (!rest_.empty() && isBlank(rest_.front())) rest_.remove_prefix(1);
    if (rest_.empty()) return {};
    const char c = rest_.front();
    if (c == '\'' || c == '"') return takeText();
    if (c == '&') return takeRadix();
    if (isDigit(c) || (c == '.' && rest_.size() > 1 && isDigit(rest_[1]))) return takeNumber();
    if (isNameStart(c) || c == '[') return takeName();
    return takeSymbol();
}

Token Lexer::takeText() {
    const char delimiter = rest_.front();
    std::string text;
    for (std::size_t i = 1; i < rest_.size(); ++i) {
        if (rest_[i] == delimiter) {
            if (i + 1 == rest_.size() || rest_[i + 1] != delimiter) {
                Token token = take(TokenKind::Text, i + 1);
                token.text = std::move(text);
                return token;
            }
            ++i;
        }
        text += rest_[i];
    }
    throw syntaxError("Syntax error in string", rest_);
}

Token Lexer::takeNumber() {
    double value = 0;
    const auto result = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
    const auto length = static_cast<std::size_t>(result.ptr - rest_.data());
    if (result.ec == std::errc::result_out_of_range) {
        const bool tiny = rest_.substr(0, length).find('-') != std::string_view::npos;
        if (!tiny) throw RuntimeError(6);
        value = 0;
    }
    if (length < rest_.size() && (isNamePart(rest_[length]) || rest_[length] == '.'))
        throw syntaxError("Syntax error in number", rest_);
    Token token = take(TokenKind::Number, length);
    token.number = value;
    return token;
}

/// &H10 and &O17.
Token Lexer::takeRadix() {
    const char letter = rest_.size() > 1 ? upper(rest_[1]) : ' ';
    if (letter != 'H' && letter != 'O') throw syntaxError("Syntax error", rest_);
    unsigned long long value = 0;
    const auto result = std::from_chars(rest_.data() + 2, rest_.data() + rest_.size(), value, letter == 'H' ? 16 : 8);
    const auto length = static_cast<std::size_t>(result.ptr - rest_.data());
    if (result.ec == std::errc::result_out_of_range) throw RuntimeError(6);
    if (result.ec != std::errc() || (length < rest_.size() && isNamePart(rest_[length])))
        throw syntaxError("Syntax error in number", rest_);
    Token token = take(TokenKind::Number, length);
    token.number = static_cast<double>(value);
    return token;
}

Token Lexer::takeName() {
    if (rest_.front() != '[') {
        const auto end = std::ranges::find_if_not(rest_, isNamePart);
        return take(TokenKind::Name, static_cast<std::size_t>(end - rest_.begin()));
    }
    const std::size_t close = rest_.find(']');
    if (close == std::string_view::npos || close == 1) throw syntaxError("Invalid bracketing of a name", rest_);
    Token token = take(TokenKind::Name, close + 1);
    token.raw = token.raw.substr(1, close - 1);
    token.bracketed = true;
    return token;
}

Token Lexer::takeSymbol() {
    const std::string_view two = rest_.substr(0, 2);
    if (two == "<>") return take(TokenKind::Unequal, 2);
    if (two == "<=") return take(TokenKind::LessEqual, 2);
    if (two == ">=") return take(TokenKind::GreaterEqual, 2);
    switch (rest_.front()) {
    case '(': return take(TokenKind::Open, 1);
    case ')': return take(TokenKind::Close, 1);
    case '*': return take(TokenKind::Star, 1);
    case ';': return take(TokenKind::Semicolon, 1);
    case '=': return take(TokenKind::Equal, 1);
    case '<': return take(TokenKind::Less, 1);
    case '>': return take(TokenKind::Greater, 1);
    case '+': return take(TokenKind::Plus, 1);
    case '-': return take(TokenKind::Minus, 1);
    default: return take(TokenKind::Other, 1);
    }
}

} // namespace zv::jet
