#pragma once

#include <zrdatabase/ZrDataStore.h>
#include <zrdefine/VexlorFields.h>

/// The dictionaries, the security and the account that the tests of the mapping look up.
inline void setTestHostData()
{
    ZrDataContents contents;
    contents.sections = {{"Side", {{"1", "Buy"}, {"2", "Sell"}}},
                         {"Volume", {{"v", "1234567"}}},
                         {Vexlor_Fields::UserAccount::SymbolPost, {{"SH", "Shanghai"}}}};
    contents.securities = {{{Vexlor_Fields::Security::symbol, "600001.SH"},
                            {Vexlor_Fields::Security::chineseName, QString::fromUtf8("珩鹭传媒")},
                            {"SecurityID", "600001"},
                            {Vexlor_Fields::UserAccount::SymbolPost, "SH"}}};
    contents.accounts = {{{"TradingAccount", "T1"},
                          {"TradingAccountName", "trader"},
                          {"AssetAccount", "A1"},
                          {"AssetAccountName", "assets"},
                          {"ProductAccount", "P1"},
                          {"ProductName", "fund"},
                          {"InvestAccount", "I1"},
                          {"InvestorName", "investor"}}};
    ZrDataStore::setContents(contents);
}
