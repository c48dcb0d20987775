// The controls of the screens that are not boxes, pictures or grids. Each is the toolkit's own widget; what it adds is
// that a change by code and a change by hand fire the same event, once, and that rows are chosen only by choosing them.
#pragma once

#include "platform/forms/look_label.h"
#include "platform/forms/placed.h"
#include <QComboBox>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QWheelEvent>

namespace zv::forms {

/// A label: caption, value, heading, or something to click. One that is drawn as a button takes the focus and its keys.
class Label : public Control<LookLabel> {
  public:
    explicit Label(QWidget* parent);

    Handler Click, DblClick;

    const QString& Caption() const { return caption_; }
    void setCaption(const QString& text);
    /// Sets what the label is, its words and its type at once.
    void dress(Role role, const QString& text, int typeTwips, bool bold, Qt::Alignment alignment);
    /// Colours of text and ground; an invalid ground is none.
    void setForeColor(const QColor& colour);
    void setBackColor(const QColor& colour);
    void clearHandlers() override { Click = DblClick = nullptr; }

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QString caption_;
    bool pressed_ = false;
};

inline Label* dress(Label* label, Role role, const QString& text, int typeTwips, bool bold, Qt::Alignment alignment) {
    label->dress(role, text, typeTwips, bold, alignment);
    return label;
}

/// A button. Enter presses it like the space bar, once for each time the key goes down.
class Button : public Control<QPushButton> {
  public:
    explicit Button(QWidget* parent);
    Handler Click;
    void clearHandlers() override { Click = nullptr; }

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

class Frame : public Control<LookFrame> {
  public:
    explicit Frame(QWidget* parent);
    void clearHandlers() override {}
};

class Rule : public Control<LookRule> {
  public:
    explicit Rule(QWidget* parent);
    void clearHandlers() override {}
};

/// A list of choices. ListIndex -1 means none.
class Combo : public Control<QComboBox> {
  public:
    explicit Combo(QWidget* parent);

    Handler Click;

    int ListCount() const { return count(); }
    int ListIndex() const { return currentIndex(); }
    /// Chooses a row; another row than before fires Click. Error 380 outside -1 to ListCount - 1.
    void setListIndex(int row);
    QString Text() const { return currentText(); }
    QString List(int row) const { return itemText(row); }
    void AddItem(const QString& text);
    /// Removing the chosen row leaves none chosen and fires nothing. Error 5 without that row.
    void RemoveItem(int row);
    void clearHandlers() override { Click = nullptr; }

  protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }

  private:
    bool adjusting_ = false;
};

/// A list of rows.
class ListBox : public Control<QListWidget> {
  public:
    explicit ListBox(QWidget* parent);

    Handler Click;

    int ListCount() const { return count(); }
    int ListIndex() const { return currentRow(); }
    void setListIndex(int row);
    /// Text of the chosen row, "" without one.
    QString Text() const;
    void AddItem(const QString& text);
    void Clear();
    void clearHandlers() override { Click = nullptr; }
    void applyScale(const Scale& scale) override;

  protected:
    void focusInEvent(QFocusEvent* event) override;

  private:
    void decorate(QListWidgetItem* item);
    bool adjusting_ = false;
};

/// A list whose rows carry a tick each.
class CheckList : public Control<QListWidget> {
  public:
    explicit CheckList(QWidget* parent);

    int ListCount() const { return count(); }
    QString List(int row) const { return item(row)->text(); }
    bool Selected(int row) const;
    void setSelected(int row, bool selected);
    int SelCount() const;
    void AddItem(const QString& text);
    void clearHandlers() override {}
    void applyScale(const Scale& scale) override;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

/// A bar with 16-bit bounds. A turn of the wheel goes one small step, towards the user goes on.
class ScrollBar : public Control<QScrollBar> {
  public:
    explicit ScrollBar(QWidget* parent);

    Handler Change;

    /// The arrow keys follow the direction: right and down go on.
    void setDirection(Qt::Orientation orientation) {
        setOrientation(orientation);
        setInvertedControls(orientation == Qt::Vertical);
    }
    int Value() const { return value(); }
    /// Another value than before fires Change. Error 380 outside Min to Max, 6 beyond 16 bits.
    void setValue(int value);
    int Min() const { return minimum(); }
    int Max() const { return maximum(); }
    void setMin(int min);
    void setMax(int max);
    void clearHandlers() override { Change = nullptr; }

  protected:
    void wheelEvent(QWheelEvent* event) override;

  private:
    WheelSteps wheel_;
};

class ProgressBar : public Control<QProgressBar> {
  public:
    explicit ProgressBar(QWidget* parent);
    /// Shows at once, also while a handler runs. A maximum of 0 is taken: an empty selection has no work.
    void setProgress(int value);
    void setMax(int max);
    void clearHandlers() override {}
};

/// A row of tabs. The tabs stand where the logic says, in twips. A click gives the row the focus; its mark is drawn
/// once the keyboard is at work there.
class TabControl : public Control<QTabBar> {
  public:
    /// pitches: width of each tab with its gap to the next, in twips.
    explicit TabControl(QWidget* parent);
    void setTabs(const std::vector<std::pair<QString, int>>& captionsAndPitches, int first);

    Handler Click;

    int Tab() const { return currentIndex(); }
    /// Another tab than before fires Click. Error 380 without that tab.
    void setTab(int tab);
    void clearHandlers() override { Click = nullptr; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    QSize tabSizeHint(int index) const override;
    QSize minimumTabSizeHint(int index) const override { return tabSizeHint(index); }
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    void setByKeys(bool byKeys);

    bool byKeys_ = false;    ///< the focus was brought or used by the keyboard
    std::vector<int> edges_; ///< left edge of each tab in twips, and the end of the last
    int hovered_ = -1;
    bool filling_ = false;
};

} // namespace zv::forms
