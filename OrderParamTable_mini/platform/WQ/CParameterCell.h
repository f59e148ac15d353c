#pragma once

#include <WQ/CEventWidgetT.h>
#include <WQ/CUiResourceChangeHandler.h>

#include <QWidget>

#include <memory>

namespace WQ {

class CParameterCellPrivate;

/// A single labelled value outside a table. It shows what it is given: its validator judges typing alone.
///
/// While it is enabled, a person may type into it: a commit that changes its text sends event 87 (a number) or 102 (a
/// text) with its ID and the text. Programmatic changes send nothing.
class WQ_EXPORT CParameterCell : public CEventWidgetT<QWidget>, public CUiResourceChangeHandler
{
    Q_OBJECT
public:
    CParameterCell(int id, const QString& label, const QString& unit, QWidget* parent);
    ~CParameterCell() override;

    /// What typing may enter: numbers from @p min to @p max, whole ones when all three are whole; @p step gives the
    /// decimals that are shown and what Up and Down add; @p message overrides the text shown for a wrong number when
    /// not empty. Never bounds a value that is set. Until the first call any text may be typed.
    void setDoubleValidator(const QString& message, double min, double max, double step);

    /// Sets the value: a number shown with the decimals of the step (not-a-number shows the invalid text), an int, or
    /// any text.
    void setDouble(double value);
    void setInt(int value);
    void setString(const QString& text);

    void setUnit(const QString& unit);

    /// The font keys of the value and of the label.
    void setEditFontKey(const QString& key);
    void setTextFontKey(const QString& key);

    /// What it shows, read back: the ID, label, value text without grouping, and the limits of the validator (0 before
    /// one was set).
    int id() const;
    QString label() const;
    QString text() const;
    double minimum() const;
    double maximum() const;
    double step() const;

    /// The text that explains why a typed value is wrong, from the limits.
    virtual QString formatInvalidMessage(double min, double max);
    virtual QString formatInvalidMessage(int min, int max);

    QSize sizeHint() const override;
    void themeChanged() override;
    void scaleChanged() override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class CParameterCellPrivate;
    std::unique_ptr<CParameterCellPrivate> const d;
};

} // namespace WQ
