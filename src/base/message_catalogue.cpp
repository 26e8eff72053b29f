// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/message_catalogue.h"

#include <QtGlobal>
#include <array>

namespace vexa {
namespace {

namespace title {
constexpr const char* kError = QT_TRANSLATE_NOOP("Text", "VEXA-KT ｴﾗｰ");
constexpr const char* kWarning = QT_TRANSLATE_NOOP("Text", "VEXA-KT ﾜｰﾆﾝｸﾞ");
constexpr const char* kMessage = QT_TRANSLATE_NOOP("Text", "VEXA-KT ﾒｯｾｰｼﾞ");
constexpr const char* kInformation = QT_TRANSLATE_NOOP("Text", "VEXA-KT 情報");
constexpr const char* kModel = "VEXA-KT";
constexpr const char* kInput = QT_TRANSLATE_NOOP("Text", "設定入力");
constexpr const char* kController = QT_TRANSLATE_NOOP("Text", "ｺﾝﾄﾛｰﾗｴﾗｰ");
constexpr const char* kClear = "ALL CLEAR";
constexpr const char* kConfirm = QT_TRANSLATE_NOOP("Text", "確認");
}  // namespace title

constexpr const char* kReplaceText =
    QT_TRANSLATE_NOOP("Text", "同ﾌｧｲﾙ名が存在します。上書き保存しますか？");
constexpr const char* kStockText = QT_TRANSLATE_NOOP(
    "Text", "現在累積されている色度図データと表示条件が異なります。現累積データをクリアしますか？");
constexpr const char* kDeviceText = QT_TRANSLATE_NOOP("Text", "通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。");

constexpr std::array<MessageEntry, kMessageCount> kCatalogue{{
    {Message::kReplaceFile, title::kWarning, MessageIcon::kWarning, MessageButtons::kYesNo,
     kReplaceText},
    {Message::kReplaceFileOrCancel, title::kWarning, MessageIcon::kWarning,
     MessageButtons::kOkCancel, kReplaceText},
    {Message::kNameNotEncodable, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾌｧｲﾙ名に、設定ﾌｧｲﾙに保存できない文字が含まれています。\r\r%1")},
    {Message::kWriteError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾌｧｲﾙの書き込みでエラーが発生しました。\r\r%1\r\r%2")},
    {Message::kDataReadError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。\r\r%"
                       "1ﾌｧｲﾙではありません。\r\rﾌｧｲﾙを確認してください。")},
    {Message::kOldDataVersion, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。\r\rVEXA-KT "
                       "旧Verのデータﾌｧｲﾙではありません。\r\rﾌｧｲﾙを確認してください。")},
    {Message::kEraseSlots, title::kModel, MessageIcon::kWarning, MessageButtons::kOkCancel,
     QT_TRANSLATE_NOOP("Text", "%1ﾃﾞｰﾀをひらくためﾃﾞｰﾀ１～ﾃﾞｰﾀ%1までのﾃﾞｰﾀが消去されます。")},
    {Message::kReplaceUnsaved, title::kMessage, MessageIcon::kQuestion, MessageButtons::kOkCancel,
     QT_TRANSLATE_NOOP(
         "Text", "ﾌｧｲﾙに保存していない測定ﾃﾞｰﾀがｽﾛｯﾄから消えます。ﾌｧｲﾙを開いてもよろしいですか？")},
    {Message::kSubstrateVersionError, title::kModel, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。")},
    {Message::kStockReadError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "ﾃﾞｰﾀ･ﾌｧｲﾙの読み込みでエラーが発生しました。\r\r%"
                       "1ﾌｧｲﾙではありません\r\rﾌｧｲﾙを確認してください。")},
    {Message::kStandardVersionRefused, title::kModel, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "規格ﾌｧｲﾙ名:%1\r\rVer1.10以前の規格ﾌｧｲﾙは読み込めません。")},
    {Message::kStandardReadError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "規格ﾌｧｲﾙの読み込みでエラーが発生しました。\r\r規格ﾌｧｲﾙ名:%1")},
    {Message::kSaveStandards, title::kMessage, MessageIcon::kQuestion, MessageButtons::kYesNo,
     QT_TRANSLATE_NOOP("Text", "規格ﾌｧｲﾙがｾｰﾌﾞされていません。ｾｰﾌﾞしますか。")},
    {Message::kSettingsReadError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text",
         "ﾌｧｲﾙの読み込みでエラーが発生しました。\r\rﾌｧｲﾙ名:%1\r\rﾃﾞﾌｫﾙﾄ値に設定されます。")},
    {Message::kEnvironmentVersionError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "環境ﾌｧｲﾙのVerエラーが発生しました。\r\r環境ﾌｧｲﾙ名:%1\r\r環境ﾌｧｲﾙVer:%"
                       "2\r\r環境ﾊﾟﾗﾒｰﾀｰはﾃﾞﾌｫﾙﾄ値に設定されます。")},
    {Message::kEnvironmentReadError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "環境ﾌｧｲﾙの読み込みでエラーが発生しました。\r\r環境ﾌｧｲﾙ名:%"
                       "1\r\r環境ﾊﾟﾗﾒｰﾀｰはﾃﾞﾌｫﾙﾄ値に設定されます。")},
    {Message::kEnvironmentMissing, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text",
         "環境ﾌｧｲﾙが見つかりません。\r\r環境ﾌｧｲﾙ名:%1\r\r環境ﾊﾟﾗﾒｰﾀｰはﾃﾞﾌｫﾙﾄ値に設定されます。")},
    {Message::kUnknownIlluminant, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "環境ﾌｧｲﾙの光源の値が正しくありません。\r\r環境ﾌｧｲﾙ名:%1\r\r光源:%2")},
    {Message::kLinePositionsUnfit, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text",
         "起動ﾌｧｲﾙのﾗｲﾝ位置(ﾋﾟｸｾﾙ)が検出器に合いません。測定される波長は正しくありません。"
         "\r\rﾌｧｲﾙ名:%1\r\rﾗｲﾝ位置:%2")},
    {Message::kNoEnvironmentName, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾌｧｲﾙ名が定義されていません。")},
    {Message::kReplaceUnreadEnvironment, title::kWarning, MessageIcon::kWarning,
     MessageButtons::kYesNo,
     QT_TRANSLATE_NOOP("Text", "読み込まれていない環境ﾌｧｲﾙです。上書き保存しますか？\r\r%1")},
    {Message::kReplaceChangedFile, title::kWarning, MessageIcon::kWarning, MessageButtons::kYesNo,
     QT_TRANSLATE_NOOP("Text",
                       "設定ﾌｧｲﾙが、読み書きした後に他のｳｨﾝﾄﾞｳかﾌﾟﾛｸﾞﾗﾑで変更されています。"
                       "上書き保存しますか？\r\r%1")},
    {Message::kAnotherWindow, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "同じﾌｫﾙﾀﾞでﾌﾟﾛｸﾞﾗﾑがすでに起動しています。設定ﾌｧｲﾙを共有するので、"
                       "どちらかだけで設定を変更して下さい。\r\r%1")},
    {Message::kSaveEnvironment, title::kMessage, MessageIcon::kQuestion,
     MessageButtons::kYesNoCancel, QT_TRANSLATE_NOOP("Text", "%1\r\r現在の環境をｾｰﾌﾞしますか。")},
    {Message::kProgramSettingsUnreadable, title::kWarning, MessageIcon::kWarning,
     MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text", "ﾌﾟﾛｸﾞﾗﾑの設定ﾌｧｲﾙを読めません。次の名前で残し、既定の設定で始めます。\r\r%1")},
    // In both languages at once: whoever chose one by mistake reads the other.
    {Message::kLanguageAtNextStart, title::kInformation, MessageIcon::kInformation,
     MessageButtons::kOk,
     "表示言語は次の起動から有効になります。\r\rThe language takes effect at the next start."},
    {Message::kJournalOtherVersion, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "ほかのﾊﾞｰｼﾞｮﾝのｼﾞｬｰﾅﾙ･ﾌｧｲﾙは復元できません。次の名前で残します。\r\r%1")},
    {Message::kJournalUnreadable, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "読めないｼﾞｬｰﾅﾙ･ﾌｧｲﾙは復元できません。次の名前で残します。\r\r%1")},
    {Message::kRestoreSession, title::kMessage, MessageIcon::kQuestion,
     MessageButtons::kYesNoCancel,
     QT_TRANSLATE_NOOP("Text",
                       "前回の測定ﾃﾞｰﾀが残っています。復元しますか。\r\r%"
                       "1\r\rいいえ: 破棄します。\rｷｬﾝｾﾙ: 次の起動まで残します。")},
    {Message::kRestoreDamagedSession, title::kMessage, MessageIcon::kQuestion,
     MessageButtons::kYesNoCancel,
     QT_TRANSLATE_NOOP("Text",
                       "前回の測定ﾃﾞｰﾀが残っています。復元しますか。\r\r%"
                       "1\r\r壊れた記録があります。読めた記録を復元し、ﾌｧｲﾙの写しを残します。\r\rい"
                       "いえ: 破棄します。\rｷｬﾝｾﾙ: 次の起動まで残します。")},
    {Message::kJournalWriteError, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "ｼﾞｬｰﾅﾙ･ﾌｧｲﾙに書き込めません。測定は続けられますが、ﾌﾟﾛｸﾞﾗﾑが異常終了すると"
                       "測定ﾃﾞｰﾀは失われます。\r\r%1")},
    {Message::kRecordStoreFault, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text",
         "記録に書き込めません。測定は続けられます。書き込めなかった記録は、書き込める"
         "ようになった時に書き込まれます。\r\r%1")},
    {Message::kRecordsHeld, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text",
         "記録を控えることもできません。まだ書き込めない記録は、ﾌﾟﾛｸﾞﾗﾑが終わると失われ"
         "ます。書き込めるようにしてから終了してください。\r\r%1")},
    {Message::kRecordStoreReplaced, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "記録のﾌｧｲﾙが取り除かれたか、置き換えられました。これからの記録は、今この"
                       "名前にあるﾌｧｲﾙに書き込みます。それまでの記録と日常点検の保留は、元のﾌｧｲﾙ"
                       "にあります。\r\r%1")},
    {Message::kRecordSettingsUnreadable, title::kWarning, MessageIcon::kWarning,
     MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "記録の設定ﾌｧｲﾙを読めません。記録は共有されず、測定機の名前はこの計算機の"
                       "名前になります。\r\r%1")},
    {Message::kRecordUnreadable, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "記録を読めません。\r\r%1")},
    {Message::kRecordNotWritten, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "記録に書き込めませんでした。\r\r%1")},
    {Message::kSupersededAlready, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "どちらかの記録は、すでに置き換えられています。")},
    {Message::kTooManyForDataFile, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾃﾞｰﾀ･ﾌｧｲﾙに入る記録は10件までです。")},
    {Message::kRecipeFault, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "レシピを使えません。\r\r%1")},
    {Message::kLotWithoutName, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ロットを入力してください。")},
    {Message::kLotWithoutRows, title::kMessage, MessageIcon::kInformation, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ロット %1 の記録がありません。")},
    {Message::kControllerFailed, title::kController, MessageIcon::kStop, MessageButtons::kOk,
     kDeviceText},
    {Message::kGpibServiceRequest, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "GP-IB通信でSRQｴﾗｰ発生しました。(%1 %2)")},
    {Message::kGpibController, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ｺﾝﾄﾛｰﾗｴﾗｰ(%1 %2)")},
    {Message::kGpibFormat, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "GP-IB通信でﾌｫｰﾏｯﾄ･ｴﾗｰ発生しました。(%1 %2)")},
    {Message::kGpibTimeOut, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "GP-IB通信でﾀｲﾑｱｳﾄ･ｴﾗｰ発生しました。(%1 %2)")},
    {Message::kGpibDevice, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "通信でﾃﾞﾊﾞｲｽ･ｴﾗｰ発生しました。(%1 %2)")},
    {Message::kGpibOverflow, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "GP-IB通信でｵﾊﾞｰﾌﾛｰ･ｴﾗｰ発生しました。(%1 %2)")},
    {Message::kGpibControlBox, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "コントロールボックスの初期化でｴﾗｰ発生しました。(%1 %2)")},
    {Message::kGpibUnexpected, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "GP-IB通信で予期しないｴﾗｰ発生しました。(%1 %2)")},
    {Message::kSamplingFailed, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ｻﾝﾌﾟﾘﾝｸﾞ設定でｴﾗｰが発生しました。")},
    {Message::kControllerMissing, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ｺﾝﾄﾛｰﾗが接続されていません。")},
    {Message::kMeasureBackground, title::kMessage, MessageIcon::kInformation, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾊﾞｯｸｸﾞﾗﾝﾄﾞを測定して下さい。")},
    {Message::kMeasureReference, title::kMessage, MessageIcon::kInformation, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾘﾌｧﾚﾝｽを測定して下さい。")},
    {Message::kMeasureOver, title::kMessage, MessageIcon::kQuestion, MessageButtons::kOkCancel,
     QT_TRANSLATE_NOOP("Text", "すでに測定されてます。上書きしてもよろしいですか？")},
    {Message::kUsesSlot, title::kMessage, MessageIcon::kQuestion, MessageButtons::kOkCancel,
     QT_TRANSLATE_NOOP(
         "Text", "この測定にはｽﾛｯﾄ %1 を使います。そのﾃﾞｰﾀは上書きされます。よろしいですか？")},
    {Message::kClearAll, title::kClear, MessageIcon::kQuestion, MessageButtons::kOkCancel,
     QT_TRANSLATE_NOOP("Text", "全てのデータをクリアします。よろしいですか？")},
    {Message::kSaturated, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "取り込んだﾃﾞｰﾀが飽和しています。")},
    {Message::kNoLight, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text", "取り込んだ光量がすべて0です。検出器とｹｰﾌﾞﾙ、分光器のﾗｲﾝ位置を確認して下さい。")},
    {Message::kLinesMissing, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text", "検出器のﾗｲﾝが%2本のうち%1本しか届いていません。届いたﾗｲﾝの平均を使います。")},
    {Message::kAcquisitionFailed, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "データ取得でエラーが発生しました。")},
    {Message::kEndMeasurement, title::kMessage, MessageIcon::kQuestion, MessageButtons::kOkCancel,
     QT_TRANSLATE_NOOP("Text", "測定中です。測定を中止して終了しますか。")},
    {Message::kUnexpectedFault, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "予期しないエラーが発生しました。\r%1")},
    {Message::kNoValidData, title::kInformation, MessageIcon::kInformation, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "有効ﾃﾞｰﾀがありません。")},
    {Message::kStockNowFull, title::kMessage, MessageIcon::kInformation, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "累積データ数が100になりました")},
    {Message::kStockFull, title::kMessage, MessageIcon::kInformation, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "累積データ数が100を越えました。データをクリアしてください。")},
    {Message::kClearStock, title::kMessage, MessageIcon::kQuestion, MessageButtons::kOkCancel,
     kStockText},
    {Message::kClearStockForDisplay, title::kMessage, MessageIcon::kQuestion,
     MessageButtons::kYesNo, kStockText},
    {Message::kAbortDiagram, title::kConfirm, MessageIcon::kQuestion, MessageButtons::kOkCancel,
     QT_TRANSLATE_NOOP("Text", "色座標の作成を中止します。")},
    {Message::kUnknownDispersionKind, title::kModel, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "Erroro GetBunsanArray(Bunsan.Bas)")},
    {Message::kDispersionFault, title::kModel, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "%1分散計算が発生しました。設定は無効となります。")},
    {Message::kIndexFileFault, title::kModel, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "%1分散データが読み込まれていません。")},
    {Message::kSubstrateFileFault, title::kModel, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "%1基板屈折率データが読み込まれていません。")},
    {Message::kTypeCWithSubstrate, title::kModel, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "’タイプＣ’と’基板屈折率を使用し計算’の組み合わせはできません。")},
    {Message::kReferenceOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "固定反射率値が設定範囲を越えています。 (0.1 ≦ 設定値 ≦ 110)")},
    {Message::kIndexOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "固定屈折率が設定範囲を越えています。 (0.1 ≦ 設定値 ≦ 10)")},
    {Message::kCoefficientNotANumber, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "係数が数値ではありません。")},
    {Message::kReferenceFileReadError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾘﾌｧﾚﾝｽ･ﾌｧｲﾙの読み込みに失敗しました。")},
    {Message::kReferenceFileWriteError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾘﾌｧﾚﾝｽ･ﾌｧｲﾙの書き込みに失敗しました。")},
    {Message::kIndexFileReadError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "屈折率ﾌｧｲﾙの読み込みに失敗しました。")},
    {Message::kIndexFileWriteError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "屈折率ﾌｧｲﾙの書き込みに失敗しました。")},
    {Message::kTooFewExtrema, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "検出ピーク数が２個以下で膜厚計算にｴﾗｰが発生しました。")},
    {Message::kTooManyExtrema, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text", "検出ピーク個数が最大検出数を越えて膜厚計算にｴﾗｰが発生しました。(最大ﾋﾟｰｸ数50)")},
    {Message::kThicknessFault, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "膜厚計算でｴﾗｰが発生しました。")},
    {Message::kThicknessDisabled, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "膜厚測定設定が有効ではありません。")},
    {Message::kHistoryThicknessDisabled, title::kWarning, MessageIcon::kWarning,
     MessageButtons::kOk, QT_TRANSLATE_NOOP("Text", "膜厚測定が設定されていません。")},
    {Message::kHistoryKindDiffers, title::kModel, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text",
         "履歴の膜厚と種類（物理膜厚、光学膜厚）が異なります。\r全ﾃﾞｰﾀ･ｸﾘｱの後に追加して下さい。")},
    {Message::kHistoryFull, title::kModel, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ｸﾞﾗﾌ･ﾃﾞｰﾀ数が最大ﾃﾞｰﾀ数を越えました。　(最大ﾃﾞｰﾀ数 50 ﾎﾟｲﾝﾄ)")},
    {Message::kHistoryNoPoint, title::kModel, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾃﾞｰﾀがありません。")},
    {Message::kHistoryClear, title::kModel, MessageIcon::kQuestion, MessageButtons::kOkCancel,
     QT_TRANSLATE_NOOP("Text", "測定ﾃﾞｰﾀをｸﾘｱします。")},
    {Message::kHistoryScaleFault, title::kModel, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "設定にｴﾗｰが発生しました。変更はされません。")},
    {Message::kHistoryScaleOutOfRange, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ｽｹｰﾙ設定が設定範囲を越えています。(0 ≦ 設定値 ≦ 20000)")},
    {Message::kHistoryWriteError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "膜厚履歴ﾌｧｲﾙの書き込みに失敗しました。")},
    {Message::kFilmFitRefused, title::kError, MessageIcon::kWarning, MessageButtons::kOk, "%1"},
    {Message::kFilmStackUnsaved, title::kMessage, MessageIcon::kQuestion,
     MessageButtons::kYesNoCancel,
     QT_TRANSLATE_NOOP("Text", "膜構成の変更が保存されていません。保存しますか。")},
    {Message::kFilmStackFault, title::kError, MessageIcon::kWarning, MessageButtons::kOk,
     "%1\r\r%2"},
    {Message::kStandardOutOfRange, title::kError, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "%1波長範囲外エラー")},
    {Message::kStandardNegative, title::kError, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "%1規格マイナス指定エラー")},
    {Message::kStandardReversed, title::kError, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "%1大小反転エラー")},
    {Message::kStandardSameWavelength, title::kError, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "%1同一波長指定エラー")},
    {Message::kStandardHueOutOfRange, title::kError, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "%1範囲外エラー<範囲:0°-360°>")},
    {Message::kStandardNotANumber, title::kError, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "%1数値入力エラー")},
    {Message::kShortestOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "波長表示の最短波長値が設定範囲外です。 (%1<= 設定値 <=%2)")},
    {Message::kLongestOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "波長表示の最長波長値が設定範囲外です。 (%1<= 設定値 <=%2)")},
    {Message::kWidthOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "波長表示の幅が範囲を越えています。 (20 ≦ 設定値 ≦ 401)")},
    {Message::kWavelengthTickOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "波長の目盛り間隔が設定範囲を越えています。 (5 ≦ 設定値 ≦ 1000)")},
    {Message::kMinimumOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "反射率の最小値の設定範囲を越えています。 (0 ≦ 設定値 ≦ 100)")},
    {Message::kMaximumOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "反射率の最大値の設定範囲を越えています。 (0.01 ≦ 設定値 ≦ 100)")},
    {Message::kTickOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "反射率の目盛り間隔が設定範囲を越えています。 (最大目盛り本数 100)")},
    {Message::kTextStepNotANumber, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾃｷｽﾄ表示ｽﾃｯﾌﾟが設定範囲を越えています。 (1≦ 設定値 ≦ 100)")},
    {Message::kTextStepOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾃｷｽﾄ表示の表示ｽﾃｯﾌﾟが設定範囲を越えています。 (1 ≦ 設定値 ≦ 100)")},
    {Message::kAverageShortestOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "平均反射率の最短波長値が設定範囲外です。 (%1<= 設定値 <=%2)")},
    {Message::kAverageLongestOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "平均反射率の最長波長値が設定範囲外です。 (%1<= 設定値 <=%2)")},
    {Message::kAverageWidthOutOfRange, title::kInput, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "平均反射率の幅が範囲を越えています。 (1 ≦ 設定値 ≦ 401)")},
    {Message::kEntryRefused, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾃﾞｰﾀが入力できません。再入力して下さい。")},
    {Message::kEntryNotEncodable, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾌｧｲﾙに保存できない文字が含まれています。\r\r%1")},
    {Message::kSampleNumberSplits, title::kInformation, MessageIcon::kInformation,
     MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "試料Noのｺﾝﾏは、CSVﾌｧｲﾙを開くときに列の区切りとして読まれます。\r\r%1")},
    {Message::kNotADate, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text",
                       "測定日が日付ではありません。\r\r%1\r\r2026/11/22、2026/11/22 9:05、"
                       "2026/11/22 9:05:00 の形で入力してください。")},
    {Message::kSamplingTimeOutOfRange, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ｻﾝﾌﾟﾘﾝｸﾞ時間が設定範囲を越えています。 (30 ≦ 設定値 ≦ 10000)")},
    {Message::kAveragingOutOfRange, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "取り込み平均回数が設定範囲を越えています。 (1 ≦ 設定値 ≦ 16)")},
    {Message::kShiftOutOfRange, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ｷｬﾘﾌﾞﾚｰｼｮﾝのｼﾌﾄ値が設定範囲を越えています。 (0 ≦ 設定値 ≦ 7)")},
    {Message::kShiftChanged, title::kInformation, MessageIcon::kInformation, MessageButtons::kOk,
     QT_TRANSLATE_NOOP(
         "Text", "この設定は、再起動を含め次の測定から有効になります。\r\rｷｬﾘﾌﾞﾚｰｼｮﾝ･ﾌｧｲﾙ名:%1")},
    {Message::kMarginOutOfRange, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "余白が設定範囲を越えています。 (0 ≦ 設定値 ≦ 50)")},
    {Message::kMarginsTooLarge, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "余白が大きすぎます。 (印刷範囲は縦横とも100mm以上)")},
    {Message::kPrinterMissing, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾌﾟﾘﾝﾀが見つかりません。\r\r%1")},
    {Message::kPrintError, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "印刷でｴﾗｰが発生しました。\r\r%1")},
    {Message::kFileMissing, title::kError, MessageIcon::kStop, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾌｧｲﾙが見つかりません。\r\r%1")},
    {Message::kRecentFileMissing, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "ﾌｧｲﾙが見つかりません。最近使ったﾌｧｲﾙから除きます。\r\r%1")},
    {Message::kOneFileAtATime, title::kWarning, MessageIcon::kWarning, MessageButtons::kOk,
     QT_TRANSLATE_NOOP("Text", "一度に開けるﾌｧｲﾙは１つです。")},
}};

constexpr bool StandsInOrder() {
  for (std::size_t i = 0; i < kCatalogue.size(); ++i) {
    if (static_cast<std::size_t>(kCatalogue[i].id) != i) {
      return false;
    }
  }
  return true;
}
static_assert(StandsInOrder(), "an entry is found by its number");

}  // namespace

const MessageEntry& CatalogueEntry(Message id) {
  return kCatalogue[static_cast<std::size_t>(id)];
}

}  // namespace vexa
