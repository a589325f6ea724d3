#pragma once

#include "zrdatabase/zrdatabase_global.h"

#include <QtCore/QString>

/// Field names of security and account records beyond those that Vexlor_Fields names.
///
/// Shape:   a record may hold further fields; these are the ones that look-ups read.
/// Threads: constant after static initialisation; not readable from the static initialisers of another
/// library.
namespace ZrDataFields {
/// Security: the code without its market, and the suffix of the market without its dot ("SH").
extern ZRDATABASE_EXPORT const QString securityID;
extern ZRDATABASE_EXPORT const QString post;
/// Security: names and the initials by which people search for it.
extern ZRDATABASE_EXPORT const QString englishName;
extern ZRDATABASE_EXPORT const QString searchKey;
/// Security: type and sub type ("Stock", "MainBoard"), whether it can be traded.
extern ZRDATABASE_EXPORT const QString securityType;
extern ZRDATABASE_EXPORT const QString subType;
extern ZRDATABASE_EXPORT const QString tradable;
/// Security: prices in yuan, lot in shares.
extern ZRDATABASE_EXPORT const QString previousClose;
extern ZRDATABASE_EXPORT const QString lotSize;
extern ZRDATABASE_EXPORT const QString priceTick;
extern ZRDATABASE_EXPORT const QString upperLimit;
extern ZRDATABASE_EXPORT const QString lowerLimit;
/// Account: numbers of its product and its investor, authorities separated by ";".
extern ZRDATABASE_EXPORT const QString productAccount;
extern ZRDATABASE_EXPORT const QString investAccount;
extern ZRDATABASE_EXPORT const QString authorities;
} // namespace ZrDataFields
