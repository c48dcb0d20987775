// Texts of the numbered run-time errors, and the guard around entries from the toolkit.
#include "platform/base/runtime_error.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <new>

namespace zv {
namespace {

struct ErrorText {
    int number;
    const char16_t* text;
};

// In rising order of number. <..> is filled in by whoever raises the error with a text of its own.
constexpr std::array kTexts{
    ErrorText{5, u"Invalid procedure call or argument"},
    ErrorText{6, u"Overflow"},
    ErrorText{7, u"Out of memory"},
    ErrorText{9, u"Subscript out of range"},
    ErrorText{11, u"Division by zero"},
    ErrorText{13, u"Type mismatch"},
    ErrorText{28, u"Out of stack space"},
    ErrorText{53, u"File not found"},
    ErrorText{58, u"File already exists"},
    ErrorText{61, u"Disk full"},
    ErrorText{70, u"Permission denied"},
    ErrorText{75, u"Path/File access error"},
    ErrorText{76, u"Path not found"},
    ErrorText{91, u"Object variable or With block variable not set"},
    ErrorText{93, u"Invalid pattern string"},
    ErrorText{94, u"Invalid use of Null"},
    ErrorText{380, u"Invalid property value"},
    ErrorText{381, u"Invalid property-array index"},
    ErrorText{481, u"Invalid picture"},
    ErrorText{482, u"Printer error"},
    ErrorText{3001, u"Invalid argument."},
    ErrorText{3020, u"Update or CancelUpdate without AddNew or Edit."},
    ErrorText{3021, u"No current record."},
    ErrorText{3022, u"The changes you requested to the table were not successful because they would create duplicate "
                    u"values in the index, primary key, or relationship."},
    ErrorText{3024, u"Could not find file."},
    ErrorText{3026, u"Not enough space on disk."},
    ErrorText{3027, u"Cannot update. Database or object is read-only."},
    ErrorText{3044, u"Not a valid path."},
    ErrorText{3049, u"Cannot open database. It may not be a database that your application recognizes, or the file may "
                    u"be corrupt."},
    ErrorText{3051, u"The database engine cannot open the file. It is already opened exclusively by another user, or "
                    u"you need permission to view its data."},
    ErrorText{3061, u"Too few parameters."},
    ErrorText{3070, u"The database engine does not recognize a name as a valid field name or expression."},
    ErrorText{3075, u"Syntax error in query expression."},
    ErrorText{3077, u"Syntax error in expression."},
    ErrorText{3078, u"The database engine cannot find the input table or query."},
    ErrorText{3138, u"Syntax error in ORDER BY clause."},
    ErrorText{3145, u"Syntax error in WHERE clause."},
    ErrorText{3163, u"The field is too small to accept the amount of data you attempted to add."},
    ErrorText{3164, u"The field cannot be updated."},
    ErrorText{3167, u"Record is deleted."},
    ErrorText{3186, u"Could not save; currently locked by another user."},
    ErrorText{3187, u"Could not read; currently locked by another user."},
    ErrorText{3188, u"Could not update; currently locked by another session on this machine."},
    ErrorText{3204, u"Database already exists."},
    ErrorText{3260, u"Could not update; currently locked by another user."},
    ErrorText{3265, u"Item not found in this collection."},
    ErrorText{3314, u"The field cannot contain a Null value."},
    ErrorText{3315, u"The field cannot be a zero-length string."},
    ErrorText{3343, u"Unrecognized database format."},
    ErrorText{3356, u"The database is already opened exclusively."},
    ErrorText{3360, u"Query is too complex."},
    ErrorText{3421, u"Data type conversion error."},
    ErrorText{3464, u"Data type mismatch in criteria expression."},
    ErrorText{20477, u"Invalid file name."},
    ErrorText{30000, u"Cannot use RemoveItem on a fixed row."},
    ErrorText{30002, u"Row does not exist."},
    ErrorText{30005, u"Invalid alignment value."},
    ErrorText{30009, u"Invalid Row value"},
    ErrorText{30010, u"Invalid Col value"},
    ErrorText{30015, u"Can not remove last non-fixed row"},
    ErrorText{30016, u"FixedRows must be at least one less than Rows value"},
    ErrorText{32755, u"Cancel was selected."},
};
static_assert(std::ranges::is_sorted(kTexts, {}, &ErrorText::number));

void printAndAbort(const RuntimeError& error) {
    std::fprintf(stderr, "Run-time error '%d': %s\n", error.number(), error.what());
    std::abort();
}

FatalErrorHandler& currentHandler() {
    static FatalErrorHandler handler = printAndAbort;
    return handler;
}

} // namespace

RuntimeError::RuntimeError(int number) : RuntimeError(number, textOf(number)) {}

RuntimeError::RuntimeError(int number, QString text) : number_(number), text_(std::move(text)), utf8_(text_.toUtf8()) {}

QString RuntimeError::textOf(int number) {
    const auto found = std::ranges::lower_bound(kTexts, number, {}, &ErrorText::number);
    if (found == kTexts.end() || found->number != number)
        return QStringLiteral("Application-defined or object-defined error");
    return QString::fromUtf16(found->text);
}

FatalErrorHandler setFatalErrorHandler(FatalErrorHandler handler) {
    return std::exchange(currentHandler(), handler ? std::move(handler) : FatalErrorHandler(printAndAbort));
}

void guarded(const std::function<void()>& entry) {
    try {
        entry();
    } catch (const RuntimeError& error) {
        currentHandler()(error);
    } catch (const std::bad_alloc&) {
        currentHandler()(RuntimeError(7));
    } catch (const std::exception& error) {
        currentHandler()(
            RuntimeError(5, RuntimeError::textOf(5) + QStringLiteral(": ") + QString::fromUtf8(error.what())));
    } catch (...) {
        currentHandler()(RuntimeError(5));
    }
}

} // namespace zv
