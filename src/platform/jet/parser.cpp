// Reads a statement. The condition is read with a stack of pending operators instead of recursion: the program nests
// its filters to the left, as deep as there are filters, and lists of keys get very long.
#include "platform/jet/parser.h"

#include "platform/jet/condition_builder.h"
#include "platform/jet/lexer.h"
#include "platform/jet/syntax_error.h"

namespace zv::jet {
namespace {

enum class Pending : unsigned char { Open, Or, And, Not, Compare, Like, NotLike };

/// How tightly an operator binds; an open parenthesis holds everything.
int strength(Pending pending) {
    switch (pending) {
    case Pending::Open: return 0;
    case Pending::Or: return 1;
    case Pending::And: return 2;
    case Pending::Not: return 3;
    default: return 4;
    }
}

std::optional<Comparison> comparisonOf(TokenKind kind) {
    switch (kind) {
    case TokenKind::Equal: return Comparison::Equal;
    case TokenKind::Unequal: return Comparison::Unequal;
    case TokenKind::Less: return Comparison::Less;
    case TokenKind::LessEqual: return Comparison::LessEqual;
    case TokenKind::Greater: return Comparison::Greater;
    case TokenKind::GreaterEqual: return Comparison::GreaterEqual;
    default: return std::nullopt;
    }
}

class ConditionReader {
  public:
    ConditionReader(Lexer& lexer, ConditionBuilder& builder) : lexer_(lexer), builder_(builder) {}

    /// Reads up to the end of the condition and returns the token behind it.
    Token read() {
        Token token = lexer_.next();
        if (atEnd(token)) throw RuntimeError(3145);
        for (;; token = lexer_.next()) {
            if (wantsOperand_) {
                takeOperand(token);
            } else if (atEnd(token)) {
                reduce(1);
                if (!pending_.empty()) throw syntaxError("Syntax error: missing )", lexer_.rest());
                return token;
            } else {
                takeOperator(token);
            }
        }
    }

  private:
    struct Operator {
        Pending kind;
        Comparison comparison = Comparison::Equal;
        int mark = 0; ///< of AND and OR, for the builder
    };

    static bool atEnd(const Token& token) {
        return token.kind == TokenKind::End || token.kind == TokenKind::Semicolon || token.is("ORDER");
    }

    void takeOperand(Token& token) {
        wantsOperand_ = false;
        if (token.kind == TokenKind::Text) {
            builder_.addText(std::move(token.text));
        } else if (token.kind == TokenKind::Number) {
            builder_.addNumber(token.number);
        } else if (token.kind == TokenKind::Plus || token.kind == TokenKind::Minus) {
            const double sign = token.kind == TokenKind::Minus ? -1 : 1;
            token = lexer_.next();
            if (token.kind != TokenKind::Number) throw syntaxError("Syntax error (missing operand)", token.raw);
            builder_.addNumber(sign * token.number);
        } else if (token.kind == TokenKind::Open || token.is("NOT")) {
            pending_.push_back({token.kind == TokenKind::Open ? Pending::Open : Pending::Not});
            wantsOperand_ = true;
        } else if (token.kind == TokenKind::Name && !isKeyword(token)) {
            builder_.addColumn(token.raw);
        } else {
            throw syntaxError("Syntax error (missing operand)", token.raw);
        }
    }

    static bool isKeyword(const Token& token) {
        return token.is("AND") || token.is("OR") || token.is("LIKE") || token.is("ORDER") || token.is("WHERE") ||
               token.is("SELECT") || token.is("FROM") || token.is("BY");
    }

    void takeOperator(const Token& token) {
        if (token.kind == TokenKind::Close) return close(token);
        if (const auto comparison = comparisonOf(token.kind)) return takeTest({Pending::Compare, *comparison});
        if (token.is("LIKE")) return takeTest({Pending::Like});
        if (token.is("NOT")) {
            if (!lexer_.next().is("LIKE")) throw syntaxError("Syntax error (missing operator)", token.raw);
            return takeTest({Pending::NotLike});
        }
        if (!token.is("AND") && !token.is("OR"))
            throw syntaxError(token.raw == "," ? "Syntax error (comma)" : "Syntax error (missing operator)", token.raw);
        const Pending kind = token.is("AND") ? Pending::And : Pending::Or;
        reduce(strength(kind));
        pending_.push_back({kind, Comparison::Equal, builder_.skip(kind == Pending::And)});
        wantsOperand_ = true;
    }

    void takeTest(Operator test) {
        if (++terms_ > kMostTerms) throw RuntimeError(3360);
        reduce(strength(test.kind));
        pending_.push_back(test);
        wantsOperand_ = true;
    }

    void close(const Token& token) {
        reduce(1);
        if (pending_.empty()) throw syntaxError("Syntax error: extra )", token.raw);
        pending_.pop_back();
    }

    /// Applies the pending operators that bind at least that tightly.
    void reduce(int least) {
        for (; !pending_.empty() && strength(pending_.back().kind) >= least; pending_.pop_back()) {
            const Operator& last = pending_.back();
            switch (last.kind) {
            case Pending::Compare: builder_.compare(last.comparison); break;
            case Pending::Like: builder_.like(); break;
            case Pending::NotLike:
                builder_.like();
                builder_.negate();
                break;
            case Pending::Not: builder_.negate(); break;
            default: builder_.join(last.kind == Pending::And, last.mark);
            }
        }
    }

    Lexer& lexer_;
    ConditionBuilder& builder_;
    std::vector<Operator> pending_;
    std::size_t terms_ = 0;
    bool wantsOperand_ = true;
};

RuntimeError unknownTable(std::string_view name) {
    return RuntimeError(3078, QStringLiteral("The database engine cannot find the input table or query '%1'.")
                                  .arg(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))));
}

/// Reads the column and the direction of an ORDER BY and returns the token behind them.
Token readOrder(Lexer& lexer, std::string& column, bool& descending) {
    const Token name = lexer.next().is("BY") ? lexer.next() : Token();
    if (name.kind != TokenKind::Name) throw RuntimeError(3138);
    column = name.raw;
    Token token = lexer.next();
    descending = token.is("DESC");
    return descending || token.is("ASC") ? lexer.next() : token;
}

void applyOrder(Statement& statement, const std::string& column, ConditionBuilder& builder) {
    if (column.empty()) return;
    statement.orderColumn = statement.table.find(column);
    if (statement.orderColumn < 0) return builder.noteUnknown(column);
    if (statement.table.columns[static_cast<std::size_t>(statement.orderColumn)].kind == ColumnKind::Memo)
        throw RuntimeError(3138, QStringLiteral("Syntax error in ORDER BY clause. A memo has no order: '%1'.")
                                     .arg(QString::fromStdString(column)));
}

Statement parseSelect(Lexer& lexer, const TableFinder& findTable) {
    if (const Token star = lexer.next(); star.kind != TokenKind::Star) throw syntaxError("Syntax error", star.raw);
    if (const Token from = lexer.next(); !from.is("FROM")) throw syntaxError("Syntax error in FROM clause", from.raw);
    const Token name = lexer.next();
    if (name.kind != TokenKind::Name) throw syntaxError("Syntax error in FROM clause", name.raw);
    const std::optional<Table> table = findTable(name.raw);

    Statement statement;
    if (table) statement.table = *table;
    ConditionBuilder builder(table ? &*table : nullptr);
    Token token = lexer.next();
    const bool filtered = token.is("WHERE");
    if (filtered) token = ConditionReader(lexer, builder).read();
    std::string order;
    const bool ordered = token.is("ORDER");
    if (ordered) token = readOrder(lexer, order, statement.descending);
    if (token.kind == TokenKind::Semicolon) token = lexer.next();
    if (token.kind != TokenKind::End) {
        if (ordered) throw RuntimeError(3138);
        throw syntaxError("Syntax error", token.raw);
    }
    if (!table) throw unknownTable(name.raw);
    applyOrder(statement, order, builder);
    Condition condition = builder.finish();
    if (filtered) statement.where = std::move(condition);
    return statement;
}

} // namespace

Statement parseStatement(std::string_view source, const TableFinder& findTable) {
    if (source.size() > kLongestStatement) throw RuntimeError(3360);
    Lexer lexer(source);
    const Token first = lexer.next();
    if (first.is("SELECT")) return parseSelect(lexer, findTable);
    std::optional<Table> table;
    if (first.kind == TokenKind::Name && lexer.next().kind == TokenKind::End) table = findTable(first.raw);
    if (!table) throw unknownTable(source.substr(0, 200));
    return {std::move(*table), std::nullopt};
}

} // namespace zv::jet
