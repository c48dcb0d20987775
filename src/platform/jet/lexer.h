// Splits a statement into tokens.
#pragma once

#include <string>
#include <string_view>

namespace zv::jet {

enum class TokenKind {
    End,
    Name,
    Text,
    Number,
    Open,
    Close,
    Star,
    Semicolon,
    Equal,
    Unequal,
    Less,
    LessEqual,
    Greater,
    GreaterEqual,
    Plus,
    Minus,
    Other
};

struct Token {
    TokenKind kind = TokenKind::End;
    std::string_view raw;   ///< as it stands in the statement; of a name without its brackets
    bool bracketed = false; ///< a name in brackets is no keyword
    std::string text;       ///< of a text: without delimiters, doubled ones made single
    double number = 0;

    /// Whether this is the keyword (given in capitals).
    bool is(std::string_view keyword) const;
};

class Lexer {
  public:
    /// The statement in UTF-8; it must outlive the lexer and its tokens.
    explicit Lexer(std::string_view statement) : rest_(statement) {}

    /// The next token. Error 3075 for a text without its end, 6 for a number that is too large.
    Token next();

    /// What has not been read yet.
    std::string_view rest() const { return rest_; }

  private:
    Token take(TokenKind kind, std::size_t length);
    Token takeText();
    Token takeNumber();
    Token takeRadix();
    Token takeName();
    Token takeSymbol();

    std::string_view rest_;
};

/// Whether two names are the same: ASCII case does not count.
bool sameName(std::string_view first, std::string_view second);

} // namespace zv::jet
