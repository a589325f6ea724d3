#include "ZrLogWidget.h"

#include "ZrPlainText.h"

#include "zrcore/ZrCore.h"
#include "zrdefine/Constants.h"

#include <QtCore/QVariant>
#include <QtGui/QMovie>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTextEdit>

/// The parts of a log widget.
struct ZrLogWidgetPrivate
{
    explicit ZrLogWidgetPrivate(ZrLogWidget *facade);

    void createMovie();
    void createLog();
    /// Reads the first picture, so that it's seen at rest too.
    void showFirstPicture();
    bool isMoving() const { return movie->state() == QMovie::Running; }

    // All of them the facade's children.
    QMovie *movie = nullptr;
    QLabel *label = nullptr;
    QTextEdit *textEdit = nullptr;
    bool showLog = false;
    QSize pictureSize;    // as the file has it; empty without the file
    ZrLogWidget *const q; // not owned: the facade owns us
};

ZrLogWidgetPrivate::ZrLogWidgetPrivate(ZrLogWidget *facade)
    : q(facade)
{
}

void ZrLogWidgetPrivate::createMovie()
{
    label = new QLabel(q);
    label->setAccessibleName(ZrLogWidget::tr("Waiting for data"));
    auto *const layout = new QHBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    // One picture for all skins.
    movie = new QMovie(QStringLiteral("ZRData:image/dataservice.gif"), QByteArray(), q);
    label->setMovie(movie);
    // The label would ask for the size that the picture has been stretched to, and never shrink again.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    showFirstPicture();
    pictureSize = movie->frameRect().size();
}

void ZrLogWidgetPrivate::createLog()
{
    textEdit = new QTextEdit(label);
    textEdit->setReadOnly(true);
    textEdit->setTabChangesFocus(true);
    // A history of a log that grows all day would hold it twice.
    textEdit->setUndoRedoEnabled(false);
    textEdit->setAccessibleName(ZrLogWidget::tr("Log"));
    auto *const layout = new QHBoxLayout(label);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(textEdit);
    textEdit->setVisible(showLog);
}

void ZrLogWidgetPrivate::showFirstPicture()
{
    movie->start();
    movie->stop();
}

ZrLogWidget::ZrLogWidget(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<ZrLogWidgetPrivate>(this))
{
    setAttribute(Qt::WA_StyledBackground);
    d->createMovie();
    d->createLog();
    ZrCore::instance()->addStyle2View(this,
                                      Constants::SKIN_SYSTEM + QStringLiteral("zrwidget/zrlogwidget.css"));
}

ZrLogWidget::~ZrLogWidget() = default;

void ZrLogWidget::setLog(const QString &text)
{
    ZrPlainText::setText(d->textEdit, text);
}

void ZrLogWidget::appendLog(const QString &text)
{
    ZrPlainText::appendLine(d->textEdit, text);
}

void ZrLogWidget::showLog(bool shown)
{
    d->showLog = shown;
    d->textEdit->setVisible(shown);
}

void ZrLogWidget::startLogger()
{
    if (!d->isMoving())
        d->movie->start();
}

void ZrLogWidget::stopLogger()
{
    if (d->isMoving())
        d->movie->stop();
}

void ZrLogWidget::loadSkin(const QVariant &css)
{
    if (css.isValid())
        setStyleSheet(css.toString());
}

QSize ZrLogWidget::sizeHint() const
{
    return d->pictureSize.isEmpty() ? QWidget::sizeHint() : d->pictureSize;
}

void ZrLogWidget::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const bool wasMoving = d->isMoving();
    d->movie->setScaledSize(d->label->frameSize());
    // A movie takes on a new scale only when it starts.
    d->movie->stop();
    if (wasMoving)
        d->movie->start();
    else
        d->showFirstPicture();
}
