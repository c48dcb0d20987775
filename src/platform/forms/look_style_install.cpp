// Palette, fonts, tips and icon of the application.
#include "platform/forms/decoration.h"
#include "platform/forms/look_style.h"
#include <QApplication>
#include <QHeaderView>
#include <QIcon>
#include <QTableView>
#include <QToolTip>

namespace zv::forms {

namespace {

void giveFonts(const Scale& scale) {
    QApplication::setFont(scale.font(type::M, false));
    QApplication::setFont(scale.font(type::M, true), "QPushButton");
    QApplication::setFont(scale.font(type::G, true), "QHeaderView");
    QToolTip::setFont(scale.font(type::G, false));
}

QIcon icon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) icon.addPixmap(drawing(QStringLiteral("icon"), {size, size}));
    return icon;
}

} // namespace

QPalette LookStyle::palette() {
    QPalette palette(colour::FaceFoot, colour::Panel);
    palette.setColor(QPalette::Window, colour::Panel);
    palette.setColor(QPalette::WindowText, colour::Ink);
    palette.setColor(QPalette::Base, colour::Panel);
    palette.setColor(QPalette::AlternateBase, colour::Cell);
    palette.setColor(QPalette::Text, colour::Ink);
    palette.setColor(QPalette::ButtonText, colour::Ink);
    palette.setColor(QPalette::PlaceholderText, colour::Soft);
    palette.setColor(QPalette::Highlight, colour::Navy);
    palette.setColor(QPalette::HighlightedText, colour::Missing);
    palette.setColor(QPalette::Link, colour::Navy);
    palette.setColor(QPalette::LinkVisited, colour::Navy);
    palette.setColor(QPalette::ToolTipBase, colour::Tip);
    palette.setColor(QPalette::ToolTipText, colour::Ink);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colour::Disabled);
    return palette;
}

void LookStyle::install(const Scale& scale) {
    QApplication::setStyle(new LookStyle(scale)); // the application owns it
    const QPalette all = palette();
    QApplication::setPalette(all);
    QPalette cells = all;
    cells.setColor(QPalette::Base, colour::Cell);
    QApplication::setPalette(cells, "QTableView");
    QToolTip::setPalette(all);
    giveFonts(scale);
    QApplication::setWindowIcon(icon());
}

void LookStyle::rescale(QWidget& window) {
    if (const auto* style = dynamic_cast<const LookStyle*>(QApplication::style())) giveFonts(style->scale());
    QEvent change(QEvent::StyleChange);
    QApplication::sendEvent(&window, &change);
    for (QWidget* widget : window.findChildren<QWidget*>()) QApplication::sendEvent(widget, &change);
}

} // namespace zv::forms
