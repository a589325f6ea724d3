#pragma once

#include "ZrAutoBuildSubWidgetObject.h"
#include "zrdefine/Constants.h"
#include "zrdefine/VexlorFields.h"
#include "ZrReferenceHost.h"
#include "ZrTestMain.h"

#include <QtCore/QTemporaryDir>
#include <QtGui/QValidator>

class QLineEdit;

/// Parameter records as a description gives them, for the tests of forms.
namespace form {

using Options = QList<QPair<QString, QVariant>>; // text and stored value

/// A record with id, name ("<id> name"), editor and type; `more` is added to it.
QVariantMap record(const QString &id, const QString &widgetType, const QString &valueType,
                   const QVariantMap &more = QVariantMap());
QVariantList options(const Options &options);
/// A case for `value` of the other parameter.
QVariantMap linkCase(const QVariant &value, const QVariantMap &more);
/// What makes a record depend on `otherId`.
QVariantMap link(const QString &otherId, const QVariantList &cases);
QVariantMap joined(QVariantMap first, const QVariantMap &second);

/// What can be typed: Acceptable, Intermediate or Invalid.
QValidator::State judge(const QLineEdit *edit, const QString &text);

} // namespace form

/// The host with two securities, two accounts and the names of markets, without a skin.
class FormHost
{
public:
    FormHost();
    bool isReady() const { return m_ready; }
    ZrReferenceHost host;

private:
    QTemporaryDir m_folder;
    bool m_ready = false;
};

/// While it lives, the platform without a screen may say that it can't raise a window and the like.
class QuietPlatform
{
public:
    QuietPlatform();
    ~QuietPlatform();

private:
    Q_DISABLE_COPY(QuietPlatform)
};
