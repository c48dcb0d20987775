#include "platform/printing/printer_box.h"

#include "platform/base/runtime_error.h"
#include "platform/printing/preview_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPageSize>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace zv::printing {

using namespace Qt::StringLiterals;

namespace {

constexpr QPageSize::PageSizeId Sizes[] = {QPageSize::A4,     QPageSize::A3,    QPageSize::A5,     QPageSize::B5,
                                           QPageSize::Letter, QPageSize::Legal, QPageSize::Tabloid};

} // namespace

PrinterBox::PrinterBox(std::shared_ptr<QPrinter> printer, const Document& document, QWidget* parent)
    : QPrintDialog(printer.get(), parent), printer_(std::move(printer)), document_(document) {
    setObjectName(u"DialogoImpresora"_s);
    setOptions(PrintToFile | PrintShowPageSize | PrintCollateCopies);
    addPaper();
    addPreview();
    orderTabs();
    if (auto* browse = part<QToolButton>(u"fileBrowser"_s)) browse->setAccessibleName(u"Choose the output file"_s);
    if (auto* printers = part<QComboBox>(u"printers"_s))
        connect(printers, &QComboBox::currentIndexChanged, this, [this] { printerChanged(); });
    // Behind the toolkit's own slot: the properties have been closed again.
    if (auto* properties = part<QPushButton>(u"properties"_s))
        connect(properties, &QPushButton::clicked, this, [this] { takeProperties(); });
    // Some platforms leave it to the user to name the file.
    if (auto* file = part<QLineEdit>(u"filename"_s); file && file->text().endsWith(u'/'))
        file->setText(file->text() + printer_->docName() + u".pdf"_s);
}

void PrinterBox::addPaper() {
    auto* group = new QGroupBox(u"Paper"_s, this);
    auto* grid = new QGridLayout(group);
    size_ = new QComboBox(group);
    size_->setObjectName(u"ComboPapel"_s);
    size_->setAccessibleName(u"Paper size"_s);
    for (const auto id : Sizes) size_->addItem(QPageSize::name(id), QVariant::fromValue(QPageSize(id)));
    auto* size = new QLabel(u"&Size:"_s, group);
    size->setBuddy(size_);
    portrait_ = new QRadioButton(u"Por&trait"_s, group);
    portrait_->setObjectName(u"OpcVertical"_s);
    landscape_ = new QRadioButton(u"&Landscape"_s, group);
    landscape_->setObjectName(u"OpcHorizontal"_s);
    grid->addWidget(size, 0, 0);
    grid->addWidget(size_, 0, 1, 1, 3);
    grid->addWidget(new QLabel(u"Orientation:"_s, group), 1, 0);
    grid->addWidget(portrait_, 1, 1);
    grid->addWidget(landscape_, 1, 2);
    grid->setColumnStretch(3, 1);
    connect(size_, &QComboBox::activated, this, [this] { takePaper(); });
    for (QRadioButton* way : {portrait_, landscape_}) {
        way->setAccessibleDescription(u"Orientation of the paper"_s);
        connect(way, &QRadioButton::clicked, this, [this] { takePaper(); });
    }
    if (auto* rows = qobject_cast<QVBoxLayout*>(layout())) rows->insertWidget(1, group);
    showPaper();
}

void PrinterBox::addPreview() {
    auto* buttons = findChild<QDialogButtonBox*>();
    if (!buttons) return;
    auto* look = buttons->addButton(u"Pre&view"_s, QDialogButtonBox::ActionRole);
    look->setObjectName(u"BtnVistaPrevia"_s);
    look->setAccessibleDescription(u"Shows the pages before they are printed"_s);
    look->setAutoDefault(false);
    connect(look, &QPushButton::clicked, this, [this] { preview(); });
}

QPushButton* PrinterBox::button(QDialogButtonBox::ButtonRole role) const {
    const auto* buttons = findChild<QDialogButtonBox*>();
    if (!buttons) return nullptr;
    for (QAbstractButton* button : buttons->buttons())
        if (buttons->buttonRole(button) == role) return qobject_cast<QPushButton*>(button);
    return nullptr;
}

// As they are read: the paper behind the file, and the buttons from left to right.
void PrinterBox::orderTabs() {
    const auto chain = [](std::initializer_list<QWidget*> widgets) {
        QWidget* last = nullptr;
        for (QWidget* next : widgets) {
            if (last && next) setTabOrder(last, next);
            last = next;
        }
    };
    chain({part<QToolButton>(u"fileBrowser"_s), size_, portrait_, landscape_});
    chain({button(QDialogButtonBox::ResetRole), button(QDialogButtonBox::AcceptRole),
           button(QDialogButtonBox::ActionRole), button(QDialogButtonBox::RejectRole)});
}

bool PrinterBox::intoFile() {
    const auto* file = part<QLineEdit>(u"filename"_s);
    return file && file->isEnabled();
}

// Properties and options are those of a device; a file takes only its paper.
void PrinterBox::offerWhatCounts() {
    const bool file = intoFile();
    if (auto* properties = part<QPushButton>(u"properties"_s)) properties->setVisible(!file);
    auto* options = button(QDialogButtonBox::ResetRole);
    if (!options) return;
    const auto* pane = findChild<QTabWidget*>(u"tabs"_s);
    if (file && pane && pane->isVisible()) options->click();
    options->setVisible(!file);
    // The row of buttons passes the focus on to its first one, though that be hidden.
    options->parentWidget()->setFocusProxy(file ? button(QDialogButtonBox::AcceptRole) : options);
}

void PrinterBox::printerChanged() {
    if (isVisible()) offerWhatCounts();
    takePaper();
}

void PrinterBox::showEvent(QShowEvent* event) {
    QPrintDialog::showEvent(event);
    offerWhatCounts();
}

void PrinterBox::showPaper() {
    const QPageLayout layout = printer_->pageLayout();
    int row = 0;
    while (row < size_->count() && !size_->itemData(row).value<QPageSize>().isEquivalentTo(layout.pageSize())) ++row;
    if (row == size_->count()) size_->addItem(layout.pageSize().name(), QVariant::fromValue(layout.pageSize()));
    size_->setCurrentIndex(row);
    (layout.orientation() == QPageLayout::Portrait ? portrait_ : landscape_)->setChecked(true);
}

void PrinterBox::takePaper() {
    const auto size = size_->currentData().value<QPageSize>();
    QPageLayout layout = printer_->pageLayout();
    layout.setPageSize(size, layout.minimumMargins());
    layout.setOrientation(landscape_->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer_->setPageLayout(layout);
    // Properties that are open no more would bring back their own paper.
    if (auto* sizes = part<QComboBox>(u"pageSizeCombo"_s)) sizes->setCurrentIndex(sizes->findText(size.name()));
    if (auto* way = part<QRadioButton>(landscape_->isChecked() ? u"landscape"_s : u"portrait"_s)) way->click();
}

void PrinterBox::takeProperties() {
    const QList<QDialog*> dialogs = findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly);
    if (std::none_of(dialogs.begin(), dialogs.end(), [](const QDialog* d) { return d->result() == Accepted; })) return;
    settle();
    showPaper();
}

void PrinterBox::settle() {
    settling_ = true;
    accept();
    settling_ = false;
}

void PrinterBox::done(int result) {
    if (settling_) return;
    if (result == Accepted) takePaper();
    QPrintDialog::done(result);
}

void PrinterBox::preview() {
    settle();
    takePaper();
    try {
        PreviewDialog window(printer_, this);
        if (!window.look(document_)) return;
    } catch (const RuntimeError& error) {
        error_ = error.number();
        reject();
        return;
    }
    // As if it were pressed: the toolkit may still have a question about the file.
    if (auto* print = button(QDialogButtonBox::AcceptRole)) print->click();
}

} // namespace zv::printing
