#pragma once

#include "zrwidget_global.h"

#include <QtWidgets/QComboBox>

/// The small combo box in the colour of a linkage group, with which a plugin chooses its group.
///
/// Shape:     the Qt::UserRole data of an item is the colour of its group as the text "R,G,B,A".
/// Units:     each of the four from 0 to 255, alpha as well.
/// Ownership: normal QWidget parent rules.
/// Threads:   GUI thread only.
/// Errors:    see setComboBackground.
class ZRWIDGET_EXPORT ZrLinkageCombox : public QComboBox
{
    Q_OBJECT
public:
    explicit ZrLinkageCombox(QWidget *parent = nullptr);

    /// Paints the box, or its line edit where it has one, in the colour "R,G,B,A". Anything but four numbers
    /// leaves the colour as it was and warns.
    void setComboBackground(const QString &rgba);

private:
    Q_DISABLE_COPY(ZrLinkageCombox)
};
