#include "project/system_labels.h"

const char* const kSystemStatusLabels[] = {"HP", "SP", "攻撃", "守備", "魔力", "抵抗", "技能", "反応", "敏捷", ""};

const char* const kSystemSoundLabels[] = {
    "カーソル移動", "決定", "キャンセル", "エラー", "メニュー", "キャラ・リスト等の切替",
    "スキルの入替・習得", "スキルの装備", "スキルの売買", "雇う", "復活", "放出",
    "セーブ", "メッセージ進行", "ダメージ", "ダメージ（必殺時）", "回復", "ステージクリア",
    ""};

const char* const kSystemBgmLabels[] = {"タイトル", "ワールドマップ", "ステージ", "戦闘", "オプション", ""};

const char* const kSystemPredictLabels[] = {"命中率", "必殺率", "ダメージ", "行動回数", ""};

const char* const kSystemIniLabels[] = {"ウインドウモード", "画面の色数", "垂直同期", "フレームレート(FPS)",
                                        "FPSの表示", "英語化", "DirectMusic", ""};

const char* const kBattleModeLabels[] = {"マニュアル（戦闘で戦闘コマンドを選択）", "オート（マップで戦闘コマンドを選択）",
                                         ""};

const char* const kTurnModeLabels[] = {
    "タイム（戦闘時間を定める）", "シンプル（行動回数を定める） ※戦闘中の敏捷の変化や時間スキルに対応不可", ""};

const char* const kOrderTypeLabels[] = {"交互", "連続", ""};

const char* const kSystemMenuLabels[] = {"タイトルメニュー",
                                         "オプションメニュー",
                                         "編成メニュー",
                                         "「スカウト」",
                                         "「復活」",
                                         "「放出」",
                                         "「コンフィグ」",
                                         "「ショップ」",
                                         "トレーニングメニュー",
                                         "「エントリー１」または「エントリー２」",
                                         "「味方」または「敵」",
                                         "ステージ開始前の準備メニュー",
                                         "キャラの行動メニュー",
                                         "ステージマップのシステムメニュー(Zキーで呼び出すメニュー)",
                                         "ステージマップのテストメニュー（Fキーで呼び出すメニュー）",
                                         "戦闘メニュー（マニュアル戦闘時）",
                                         ""};

const char* const kSystemFontFaces[] = {
    "System", "Terminal", "FixedSys", "Roman", "Script", "Modern", "Small Fonts", "MS Serif",
    "WST_Czec", "WST_Engl", "WST_Fren", "WST_Germ", "WST_Ital", "WST_Span", "WST_Swed", "Courier",
    "MS Sans Serif", "Marlett", "Arial", "Arial CE", "Arial CYR", "Arial Greek", "Arial TUR", "Arial Baltic",
    "Courier New", "Courier New CE", "Courier New CYR", "Courier New Greek", "Courier New TUR",
    "Courier New Baltic", "Lucida Console", "Lucida Sans Unicode", "Times New Roman", "Times New Roman CE",
    "Times New Roman CYR", "Times New Roman Greek", "Times New Roman TUR", "Times New Roman Baltic",
    "Wingdings", "Symbol", "Verdana", "Arial Black", "Comic Sans MS", "Impact", "Georgia",
    "Franklin Gothic Medium", "Palatino Linotype", "Tahoma", "Trebuchet MS", "Webdings", "Estrangelo Edessa",
    "Gautami", "Latha", "Mangal", "MV Boli", "Raavi", "Shruti", "Tunga", "Sylfaen",
    "ＭＳ ゴシック", "ＭＳ Ｐゴシック", "MS UI Gothic", "ＭＳ 明朝", "ＭＳ Ｐ明朝", "Microsoft Sans Serif",
    "Gulim", "GulimChe", "Dotum", "DotumChe", "Batang", "BatangChe", "Gungsuh", "GungsuhChe",
    "SimSun", "NSimSun", "SimSun-PUA", "SimHei", "MingLiU", "PMingLiU", "Arial Narrow", "Book Antiqua",
    "Bookman Old Style", "Century", "Century Gothic", "Garamond", "MS Outlook",
    // The Japanese display faces.
    "HGｺﾞｼｯｸE", "HGPｺﾞｼｯｸE", "HGSｺﾞｼｯｸE", "HGｺﾞｼｯｸM", "HGPｺﾞｼｯｸM", "HGSｺﾞｼｯｸM", "HG丸ｺﾞｼｯｸM-PRO",
    "HG創英角ｺﾞｼｯｸUB", "HGP創英角ｺﾞｼｯｸUB", "HGS創英角ｺﾞｼｯｸUB", "HG創英角ﾎﾟｯﾌﾟ体", "HGP創英角ﾎﾟｯﾌﾟ体",
    "HGS創英角ﾎﾟｯﾌﾟ体", "HG創英ﾌﾟﾚｾﾞﾝｽEB", "HGP創英ﾌﾟﾚｾﾞﾝｽEB", "HGS創英ﾌﾟﾚｾﾞﾝｽEB", "HG明朝B", "HGP明朝B",
    "HGS明朝B", "HG明朝E", "HGP明朝E", "HGS明朝E", "HG教科書体", "HGP教科書体", "HGS教科書体", "HG行書体",
    "HGP行書体", "HG正楷書体-PRO", "HG平成角ｺﾞｼｯｸ体W9",
    "InMusicSym", "Kartika", "Vrinda", "メイリオ", "MT Extra", "OCRB", "Sydnie",
    ""};
