#include "project/test_play_labels.h"

const char* const kTestRandomSkillLabels[] = {"テストプレイでも変わらない", "覚える可能性のあるスキルを全て習得",
                                          "ランダムスキル習得を無効化", ""};
const char* const kTestSkillLevelLabels[] = {"テストプレイでも変わらない", "習得レベル最小値と最大値の中間で習得（センスも影響）",
                                         "習得レベル最小値で習得（センスも影響）", "習得レベル最大値で習得（センスも影響）", ""};
const char* const kTestTrainingLabels[] = {"テストプレイでも変わらない", "トレーニングできる", "全ての敵と闘える", ""};
