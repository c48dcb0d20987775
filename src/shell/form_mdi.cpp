#include "shell/form_mdi.h"

#include "platform/base/files.h"
#include "platform/forms/decoration.h"
#include "platform/forms/look_style.h"
#include <QCloseEvent>
#include <QPainter>

namespace zv::shell {

using namespace Qt::StringLiterals;

FormMdi::FormMdi(jet::DBEngine& engine, Context& context, forms::Scale& scale, std::vector<ScreenEntry> screens)
    : engine_(engine), context_(context), scale_(scale) {
    setObjectName(u"FormMdi"_s);
    setWindowTitle(u"  Brumatec   - Zarvelia -"_s);
    setMinimumSize(712, 626);
    setAttribute(Qt::WA_OpaquePaintEvent);
    solapas_ = new FormSolapas(context, this, std::move(screens));
    context.navigator = solapas_;
}

FormMdi::~FormMdi() { context_.navigator = nullptr; }

bool FormMdi::Load(const QString& appPath) {
    PathBaseDatos = appPath;
    const QString file = PathBaseDatos + u'\\' + store::DatabaseFile;
    if (Dir(file) != store::DatabaseFile) {
        context_.boxes.MsgBox(u"Not Found: "_s + file, box::Critical);
        return false;
    }
    solapas_->VentanaMostrandose = PresentationNumber;
    context_.store.module1.start();
    context_.store.load(PathBaseDatos);
    context_.store.module1.ErrorBaseDatos = false;
    loaded_ = true;
    solapas_->MostrarFormulario(solapas_->VentanaMostrandose);
    return true;
}

void FormMdi::Form_Resize() {
    const double fitting = forms::Scale::forClient(size());
    if (fitting != scale_.value()) {
        scale_.set(fitting);
        forms::LookStyle::rescale(*this);
        solapas_->applyScale();
        forms::LookStyle::rescale(*this);
    }
    backdrop_ = {};
    if (loaded_ && !isMinimized()) solapas_->MostrarFormulario(solapas_->VentanaMostrandose);
}

void FormMdi::resizeEvent(QResizeEvent*) {
    guarded([this] { Form_Resize(); });
}

void FormMdi::changeEvent(QEvent* event) {
    if (event->type() == QEvent::WindowStateChange) guarded([this] { Form_Resize(); });
    QWidget::changeEvent(event);
}

void FormMdi::closeEvent(QCloseEvent* event) {
    event->accept();
    guarded([this] { Form_Unload(); });
}

void FormMdi::Form_Unload() {
    if (unloading_ || !loaded_) return;
    unloading_ = true;
    solapas_->unloadAll();
    solapas_->hide();
    context_.store.unload();
    update();
    compact();
}

// The copy, the deletion and the renaming each may fail alone; a failure is silent and what it left stays.
void FormMdi::compact() {
    try {
        if (context_.boxes.MsgBox(u"COMPACT the Database?\r\rRecommended."_s, box::YesNo) != box::Yes) return;
        const QString database = PathBaseDatos + u'\\' + store::DatabaseFile;
        const QString compacted = PathBaseDatos + u'\\' + store::CompactedFile;
        engine_.CompactDatabase(nativePath(database), nativePath(compacted));
        Kill(database);
        Name(compacted, database);
    } catch (const RuntimeError& error) {
        context_.store.module1.Err = error.number();
    }
}

void FormMdi::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QRect block = loaded_ && !unloading_ ? solapas_->block() : QRect();
    const double ratio = devicePixelRatioF();
    if (backdrop_.isNull() || backdropBlock_ != block) {
        backdrop_ = QPixmap(size() * ratio);
        backdrop_.setDevicePixelRatio(ratio);
        backdropBlock_ = block;
        QPainter onto(&backdrop_);
        forms::paintBackdrop(onto, rect(), block, scale_);
    }
    painter.drawPixmap(0, 0, backdrop_);
}

} // namespace zv::shell
