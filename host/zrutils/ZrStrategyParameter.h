#pragma once

#include "zrutils/ZrStrategyFields.h"

#include <QtCore/QVariantMap>

/// One parameter of a strategy description as the record that forms and tables are built from.
///
/// Shape:   a parameter stands on a form, in a row, or is a column of a table; each has keys of its own. Keys
///          that mean nothing for the parameter's editor are faults.
/// Threads: any.
/// Errors:  failed() of the fields; the record is of no use then.
class ZrStrategyParameter
{
public:
    enum Place { OnForm, InTable };

    ZrStrategyParameter(const QJsonValue &object, const QString &where, Place place);
    /// `row` is the form row of a parameter that names none.
    QVariantMap read(int row);
    const ZrStrategyFields &fields() const { return m_fields; }

    /// Key in a record that depends on something: whether that is a field of the chosen security. Only the
    /// reader uses it.
    static const QString securityLink;

private:
    void readNames();
    void readPlace(int row);
    void readRules();
    void readBounds();
    void readChoices();
    void readDependency();
    void readInitial();
    QVariantMap readCase(const QJsonValue &object, const QString &where);
    QVariantList readOptions(ZrStrategyFields *fields);
    QString readPattern(ZrStrategyFields *fields);
    QString readSecurities();
    bool isOffered(const QVariant &value) const;

    ZrStrategyFields m_fields;
    const Place m_place;
    QString m_editor; // a WIDGETTYPE_ constant
    QString m_type;   // a VALUETYPE_ constant
    QVariantMap m_record;
};
