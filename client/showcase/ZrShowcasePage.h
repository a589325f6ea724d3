#pragma once

#include "zrskin/IZrSkin.h"

#include <QtWidgets/QWidget>

#include <functional>

class QScrollArea;
class ZrShowcaseGrid;
class ZrShowcasePicture;

/// Shows one widget in all its states, side by side.
///
/// Shape:     a header with the class name and what it is for; below it rows of samples, each under a small
///            caption, on an even grid that wraps at the page's width; all of it scrolls.
/// Units:     sizes in logical px.
/// Ownership: normal QWidget parent rules; the page owns its samples. What a maker makes lives only until its
///            picture is taken.
/// Threads:   GUI thread only.
/// Errors:    a sample or a made widget that is null is left out with a warning.
class ZrShowcasePage : public QWidget, public IZrSkin
{
    Q_OBJECT
    Q_INTERFACES(IZrSkin)
public:
    enum class State { Hover, Focus, Pressed };
    using Maker = std::function<QWidget *()>;

    /// `id` names dock and picture ("money-edit"), `title` the class, `purpose` one sentence in the user's
    /// language.
    ZrShowcasePage(const QString &id, const QString &title, const QString &purpose,
                   QWidget *parent = nullptr);

    /// Samples that follow stand in a new row under this caption.
    void beginRow(const QString &caption);
    /// A live widget; the page owns it. One whose size policy expands fills its cells, others keep the size
    /// that they ask for. A window becomes a plain child. Without an accessible name it gets the caption's.
    void addSample(const QString &caption, QWidget *sample);
    /// A widget brought into a state that needs the mouse or the keyboard, shown as a picture. It is made
    /// anew whenever the skin changes.
    void addPicture(const QString &caption, const Maker &make, State state);

    void loadSkin(const QVariant &css) override;
    QString id() const { return m_id; }
    QString title() const { return m_title; }
    /// The page without its scroll bar, at its present width and its whole height.
    QPixmap grabWhole();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void addHeader(const QString &purpose);
    QWidget *addCell(const QString &caption, QWidget *shown);
    void skinChanged();
    void takePictures();

    const QString m_id;
    const QString m_title;
    QScrollArea *m_area;
    QWidget *m_content;
    ZrShowcaseGrid *m_row = nullptr; // the row that samples go to
    QList<ZrShowcasePicture *> m_pictures;
    bool m_outdated = true; // the pictures are to be taken when the page is seen next
};
