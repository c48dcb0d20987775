// The main window: it finds the catalogue, hosts the screens and, at the end, offers to compact the database.
#pragma once

#include "shell/form_solapas.h"
#include <QPixmap>

namespace zv::shell {

class FormMdi : public QWidget {
  public:
    /// engine: compacts at the end. scale: the window sets it to its size. screens: ScreenCount entries.
    FormMdi(jet::DBEngine& engine, Context& context, forms::Scale& scale, std::vector<ScreenEntry> screens);
    ~FormMdi() override;

    /// Finds the catalogue in that folder, sets up all state and shows the presentation. False when there is none: the
    /// message was shown and the program ends. Engine errors leave it.
    bool Load(const QString& appPath);

    FormSolapas& Solapas() { return *solapas_; }

    QString PathBaseDatos;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void Form_Unload();
    void Form_Resize();
    void compact();

    jet::DBEngine& engine_;
    Context& context_;
    forms::Scale& scale_;
    FormSolapas* solapas_;
    bool loaded_ = false, unloading_ = false;
    QPixmap backdrop_;
    QRect backdropBlock_;
};

} // namespace zv::shell
