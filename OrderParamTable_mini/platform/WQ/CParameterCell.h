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
    /// An empty value.
    /// @param id its events carry it
    /// @param label shown at the left, leading blanks included
    /// @param unit shown behind the value; empty for none
    /// @param parent the owner; may be null
    CParameterCell(int id, const QString& label, const QString& unit, QWidget* parent);
    ~CParameterCell() override;

    /// What typing may enter; whole numbers alone when all three are whole. Never bounds a value that is set. Until the
    /// first call any text may be typed.
    /// @param message shown for a wrong number; empty for formatInvalidMessage()
    /// @param min smallest number
    /// @param max largest number
    /// @param step gives the decimals that are shown and what Up and Down add
    void setDoubleValidator(const QString& message, double min, double max, double step);

    /// Shows a number with the decimals of the step.
    /// @param value any; not-a-number shows the invalid text
    void setDouble(double value);

    /// Shows a whole number.
    /// @param value any
    void setInt(int value);

    /// Shows a text.
    /// @param text any
    void setString(const QString& text);

    /// Shows a unit behind the value.
    /// @param unit empty for none
    void setUnit(const QString& unit);

    /// Chooses the font of the value.
    /// @param key a font key; an unknown one takes a visible fallback and is reported once
    void setEditFontKey(const QString& key);

    /// Chooses the font of the label.
    /// @param key a font key; an unknown one takes a visible fallback and is reported once
    void setTextFontKey(const QString& key);

    /// Read back.
    /// @return the constructor's ID
    int id() const;

    /// Read back.
    /// @return the constructor's label
    QString label() const;

    /// Read back.
    /// @return the value without grouping or unit
    QString text() const;

    /// Read back.
    /// @return the validator's; 0 before one was set
    double minimum() const;

    /// Read back.
    /// @return the validator's; 0 before one was set
    double maximum() const;

    /// Read back.
    /// @return the validator's; 0 before one was set
    double step() const;

    /// The text that explains why a typed number is wrong.
    /// @param min smallest number
    /// @param max largest number
    /// @return names the limits
    virtual QString formatInvalidMessage(double min, double max);

    /// The text that explains why a typed whole number is wrong.
    /// @param min smallest number
    /// @param max largest number
    /// @return names the limits
    virtual QString formatInvalidMessage(int min, int max);

    /// @cond handlers
    QSize sizeHint() const override;
    /// @endcond
    void themeChanged() override;
    void scaleChanged() override;

protected:
    /// @cond handlers
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// @endcond

private:
    friend class CParameterCellPrivate;
    std::unique_ptr<CParameterCellPrivate> const d;
};

} // namespace WQ
