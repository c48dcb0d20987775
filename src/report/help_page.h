// The pages of the help: what stands on each, and the screen that shows one.
#pragma once

#include "report/help_text.h"
#include "report/mock_up.h"
#include "shell/contract/screen.h"
#include <span>

namespace zv::report {

/// A drawing with the letters on it.
struct Picturing {
    Shapes (*shapes)() = nullptr;
    std::vector<Badge> badges = {};
};

struct HelpPage {
    qint16 number; ///< of the screen
    QStringView form, textControl;
    QStringView words;        ///< name of the file
    QStringView caption = {}; ///< "1 - 3" where the page has one
    /// Number of the page before and behind in its chain, 0 for none.
    int previous = 0, next = 0;
    qint16 shell::Navigator::*remembered = nullptr; ///< takes the number of the chain's page shown last
    Picturing upper = {}, lower = {};
};

/// All pages by their numbers, the first one that of the screen 58.
std::span<const HelpPage> helpPages();

class HelpScreen : public shell::Screen {
  public:
    HelpScreen(shell::Context& context, QWidget* parent, const QString& name, const HelpPage& page);

  protected:
    void Form_Load() override;
    void paintBehind(QPainter& painter) override;

  private:
    void addTurn(const QString& name, const QString& caption, int left, int number);
    void turnTo(int number);

    const HelpPage& page_;
};

} // namespace zv::report
