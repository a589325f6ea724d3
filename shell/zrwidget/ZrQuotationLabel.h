#pragma once

#include "zrskin/IZrSkin.h"
#include "zrwidget_global.h"

#include <QtWidgets/QLabel>

/// A label for a quoted price, whose look follows a mode.
///
/// Shape:     a QLabel; the skin's sheet has a rule for each mode, ZrQuotationLabel[labelMode="1"]. The skins
///            that come with the library know 0 (plain), 1 (up), 2 (down) and 3 (highlighted).
///            Plain text; one beyond the bound of ZrPlainText is shown as its beginning, and text() is that.
///            The label never claims much of its window's width: a text too wide for it is cut off.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    a mode that the sheet doesn't know looks like 0.
/// Not supported: rich text, unless the caller sets the text format and hands it to the base.
class ZRWIDGET_EXPORT ZrQuotationLabel : public QLabel, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
    Q_PROPERTY(int labelMode READ getLabelMode WRITE setLabelMode NOTIFY labelModeChanged)
public:
    explicit ZrQuotationLabel(QWidget *parent = nullptr);
    explicit ZrQuotationLabel(const QString &text, QWidget *parent = nullptr);
    ~ZrQuotationLabel() override;

    /// Hides the base's: quotes come from outside.
    void setText(const QString &text);
    QSize minimumSizeHint() const override;

    int getLabelMode() const;
    /// Emits nothing; see labelModeChanged().
    void setLabelMode(int labelMode);
    void loadSkin(const QVariant &css) override;

signals:
    /// For subclasses that change the mode by themselves. This class never emits it: quotes change by the
    /// thousand, and whoever sets the mode knows it.
    void labelModeChanged(int labelMode);

private:
    int m_labelMode = 0;
};
