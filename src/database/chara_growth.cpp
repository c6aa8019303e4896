// Generation and levelling of a character, as the game program runs them: the editor
// uses them to preview what a row of the ally and enemy tables becomes.
#include <algorithm>
#include <cmath>

#include "database/chara.h"
#include "database/chara_random.h"
#include "project/project_globals.h"

namespace {

constexpr int kAutoBattle = 1;
constexpr int kCappedSense = 99;
// Draws that may miss in a row before a distribution gives up, so that settings no
// status or category can take never hang the editor.
constexpr int kMaxMisses = 100000;

int At(const VECTOR_CLASS<std::int32_t>& values, int index) {
  return index >= 0 && index < values.Count() ? values[static_cast<std::size_t>(index)] : 0;
}

int SenseAt(const SENSE_TABLE& sense, std::size_t list, std::size_t categ) {
  return list < sense.size() && categ < sense[list].size() ? sense[list][categ] : 0;
}

int ClampStatus(long long value, int i) { return static_cast<int>(std::clamp<long long>(value, 0, StatusMax(i))); }

// A table of the shape of `shape` whose entries come from `f(list, categ)`.
template <class F>
SENSE_TABLE Shaped(const SENSE_TABLE& shape, F f) {
  SENSE_TABLE result(shape.size());
  for (std::size_t list = 0; list < shape.size(); ++list) {
    result[list].resize(shape[list].size());
    for (std::size_t categ = 0; categ < shape[list].size(); ++categ) result[list][categ] = f(list, categ);
  }
  return result;
}

const SENSE_TABLE& ClassSense(const cClass* cls) {
  static const SENSE_TABLE kNone;
  return cls != nullptr ? cls->m_vecvecSense : kNone;
}

cChara::GROWTH_TABLE ZeroGrowth(int levels) {
  cChara::GROWTH_TABLE table;
  for (auto& values : table) values.assign(static_cast<std::size_t>(levels), 0);
  return table;
}

bool IsEquipmentKind(int kind) { return kind == 7 || kind == 8 || kind == 9; }

}  // namespace

void cChara::ResolveStatus(int bKeepLevel) {
  const cClass* cls = Class();
  if (m_nClass == 0 || cls == nullptr) return;
  const int level = m_nLevel;
  m_nLevel = 1;
  for (int i = 0; i < kStatusCount; ++i) {
    const bool own = m_anInit[i] != 0;
    const int init = own ? m_anInit[i] : cls->m_anInit[i];
    const int final = own ? m_anFinal[i] : cls->m_anFinal[i];
    m_anBaseInit[i] = init;
    m_anBaseFinal[i] = final != 0 ? final : init;
    m_abGrow[i] = final != 0 ? 1 : 0;
  }
  m_nLevelMax = std::max(cls->m_nLevelMax, 1);
  m_avecGrow.Set(ZeroGrowth(m_nLevelMax));
  m_avecRandomGrow = m_avecGrow;
  if (!bKeepLevel) {
    m_vecvecSenseBase.Set(Shaped(*m_vecvecSense, [&](std::size_t l, std::size_t c) { return SenseAt(cls->m_vecvecSense, l, c); }));
    m_vecvecSenseAdd.Set(Shaped(*m_vecvecSense, [](std::size_t, std::size_t) { return 0; }));
    m_vecvecSense = m_vecvecSenseBase;
    ResetParams();
    m_nLevel = level;
  } else {
    ResetParams();
  }
}

void cChara::ResetParams() {
  for (int i = 0; i < kStatusCount; ++i) {
    m_aParam[i].m_nBase = m_aParam[i].m_nValue = m_anBaseInit[i] + At((*m_avecRandomGrow)[i], 0);
  }
  const SENSE_TABLE& classSense = ClassSense(Class());
  m_vecvecSenseBase.Set(Shaped(*m_vecvecSense, [&](std::size_t l, std::size_t c) { return SenseAt(classSense, l, c); }));
  if (m_nBuiltVersion < 232) {
    m_vecvecSenseAdd.Set(Shaped(*m_vecvecSense, [&](std::size_t l, std::size_t c) {
      return SenseAt(*m_vecvecSense, l, c) - SenseAt(*m_vecvecSenseBase, l, c);
    }));
  } else {
    m_vecvecSense.Set(Shaped(*m_vecvecSense, [&](std::size_t l, std::size_t c) {
      return SenseAt(*m_vecvecSenseBase, l, c) + SenseAt(*m_vecvecSenseAdd, l, c);
    }));
  }
}

void cChara::Generate(int bRandom, int nScout, int bMean, int bTableOnly, const cChara& src) {
  const cSystem& s = g_System;
  if (!bMean && !bTableOnly) m_nBuiltVersion = kGeneratedVersion;
  if (!s.m_bScout) nScout = 0;

  m_nLevel = 1;
  std::copy(std::begin(src.m_anBaseInit), std::end(src.m_anBaseInit), m_anBaseInit);
  std::copy(std::begin(src.m_anBaseFinal), std::end(src.m_anBaseFinal), m_anBaseFinal);
  std::copy(std::begin(src.m_abGrow), std::end(src.m_abGrow), m_abGrow);
  m_nLevelMax = std::max(src.m_nLevelMax, 1);
  m_avecGrow.Set(ZeroGrowth(m_nLevelMax));
  GROWTH_TABLE& grow = m_avecGrow.Edit();

  int g = m_nGrowthTime;
  if (!m_bRandomGrowth) {
    g = src.m_nGrowthTime;
  } else if (bMean) {
    g = (s.m_nGrowTimeMin + s.m_nGrowTimeMax) / 2;
  } else if (!bTableOnly) {
    g = CharaRandBetween(s.m_nGrowTimeMin, s.m_nGrowTimeMax);
  }
  m_nGrowthTime = g;

  // The growth line n * A + B: flat at 1 for g = 0, tilted towards early or late growth.
  const int L = m_nLevelMax;
  double A = 0, B = 0;
  if (L >= 3) {
    A = g / (5.0 * L - 10.0);
    const double X = -0.05 * (2.0 + 8.0 / (L - 2));
    B = X * g - 4.0 / (L - 2) - 10.0 * X;
  }
  for (int i = 0; i < kStatusCount; ++i) {
    const double T = 100.0 * (static_cast<double>(m_anBaseFinal[i]) - m_anBaseInit[i]);
    const double a = L == 1 ? 0.0 : std::trunc(T / (L - 1) + 0.5);
    for (int n = 2; n <= L; ++n) grow[i][static_cast<std::size_t>(n - 1)] = static_cast<int>(std::trunc((n * A + B) * a));
  }
  if (bTableOnly) {
    ResetParams();
    RecalcStatus();
    return;
  }

  for (int i = 0; i < kStatusCount; ++i) {
    m_anFrac[i] = m_anFracInit[i] = (!m_bEnemy && m_bRandomGrowth && !bMean) ? CharaRandBelow(91) : 50;
  }
  m_avecRandomGrow.Set(ZeroGrowth(m_nLevelMax));
  if (bMean) {
    ResetParams();
    RecalcStatus();
    return;
  }

  auto qualifies = [&](int i) { return m_abGrow[i] && s.m_adRate[i] > 0; };
  bool anyQualifies = false;
  for (int i = 0; i < kStatusCount; ++i) anyQualifies = anyQualifies || qualifies(i);
  if (bRandom && anyQualifies) {
    double total = std::trunc(CharaRandBetween(s.m_nGrowMin, s.m_nGrowMax) + nScout * s.m_dGrowScout);
    if (s.m_bGrowCapped) total = std::min(total, static_cast<double>(s.m_nGrowMax));
    long long acc[kStatusCount] = {};
    for (int misses = 0; total > 0 && misses < kMaxMisses;) {
      const int i = CharaRandBelow(kStatusCount);
      if (!qualifies(i)) {
        ++misses;
        continue;
      }
      misses = 0;
      const double step = (s.m_nGrowUnit > 0 && s.m_nGrowUnit < total) ? s.m_nGrowUnit : total;
      total -= step;
      acc[i] += static_cast<long long>(std::trunc(step * 100 * s.m_adRate[i]));
    }
    if (s.m_bRandomChange) {
      const double d = s.m_nChangeValue * 100.0;
      for (int done = 0, misses = 0; done < s.m_nChangeCount && misses < kMaxMisses;) {
        const int i = CharaRandBelow(kStatusCount);
        const int j = CharaRandBelow(kStatusCount);
        if (!qualifies(i) || !qualifies(j)) {
          ++misses;
          continue;
        }
        misses = 0;
        ++done;
        acc[i] = static_cast<long long>(std::trunc(acc[i] + s.m_adRate[i] * d));
        acc[j] = static_cast<long long>(std::trunc(acc[j] - s.m_adRate[j] * d));
      }
    }
    if (L >= 2) {
      GROWTH_TABLE& randomGrow = m_avecRandomGrow.Edit();
      for (int i = 0; i < kStatusCount; ++i) {
        const int unit = acc[i] < 0 ? -1 : 1;
        for (long long k = std::llabs(acc[i]); k > 0; --k) {
          randomGrow[i][static_cast<std::size_t>(CharaRandBelow(L - 1) + 1)] += unit;
        }
      }
    }
  }

  m_vecvecSenseBase = src.m_vecvecSense;
  const bool senseRates = std::any_of(g_vecSkillList.begin(), g_vecSkillList.end(), [](const cSkillList& list) {
    return std::any_of(list.m_vecCateg.begin(), list.m_vecCateg.end(), [](const cCateg& c) { return c.m_dRate > 0; });
  });
  if (!m_bEnemy && m_bRandomSense && senseRates) {
    double total = CharaRandBetween(s.m_nSenseMin, s.m_nSenseMax) + nScout * s.m_dSenseScout;
    if (s.m_bSenseCapped) total = std::min(total, static_cast<double>(s.m_nSenseMax));
    std::vector<std::vector<double>> acc(g_vecSkillList.size());
    for (std::size_t l = 0; l < acc.size(); ++l) acc[l].assign(g_vecSkillList[l].m_vecCateg.size(), 0.0);
    for (int misses = 0; total > 0 && misses < kMaxMisses;) {
      const int l = CharaRandBelow(g_vecSkillList.Count());
      const auto& categs = g_vecSkillList[static_cast<std::size_t>(l)].m_vecCateg;
      const int c = CharaRandBelow(categs.Count());
      if (categs.empty() || !(categs[static_cast<std::size_t>(c)].m_dRate > 0)) {
        ++misses;
        continue;
      }
      misses = 0;
      const double step = (s.m_nSenseUnit > 0 && s.m_nSenseUnit < total) ? s.m_nSenseUnit : total;
      total -= step;
      acc[static_cast<std::size_t>(l)][static_cast<std::size_t>(c)] += categs[static_cast<std::size_t>(c)].m_dRate * step;
    }
    m_vecvecSenseAdd.Set(Shaped(*m_vecvecSense, [&](std::size_t l, std::size_t c) {
      return l < acc.size() && c < acc[l].size() ? static_cast<int>(std::trunc(acc[l][c])) : 0;
    }));
    m_vecvecSense.Set(Shaped(*m_vecvecSense, [&](std::size_t l, std::size_t c) {
      return std::min(SenseAt(*m_vecvecSenseAdd, l, c) + SenseAt(*m_vecvecSenseBase, l, c), kCappedSense);
    }));
  }

  if (!m_bEnemy && m_bRandomSkill) {
    for (std::size_t l = 0; l < g_vecSkillList.size(); ++l) {
      const auto& skills = g_vecSkillList[l].m_vecSkill;
      for (std::size_t row = 1; row < skills.size(); ++row) {
        const cSkill& skill = skills[row];
        if (skill.m_bNotUsed) continue;
        const int v = SenseAt(*m_vecvecSense, l, static_cast<std::size_t>(std::max(skill.m_nCateg, 0)));
        if (v <= 0 || !CharaRollPercent(skill.m_nLearnRate + v * skill.m_dLearnRateSense)) continue;
        cLearnSkill learn;
        learn.m_nList = static_cast<int>(l);
        learn.m_nSkill = static_cast<int>(row);
        learn.m_nLevel = std::max(CharaRandBetween(0, skill.m_nLearnLvMax - skill.m_nLearnLvMin) -
                                      static_cast<int>(std::trunc(skill.m_dLearnLvSense * v)) + skill.m_nLearnLvMin,
                                  2);
        m_vecLearnSkill.push_back(learn);
      }
    }
  }

  BuildPlaces(1);
  const cClass* cls = Class();
  if (s.m_nBattleMode == kAutoBattle && cls != nullptr && !cls->m_bNoAttack) {
    SKILL_HOLDER holder = Holder();
    PlaceSkill(holder, cls->m_nAtkList, cls->m_nAtkSkill, false);
  }
  LearnDueSkills(1);
  ResetParams();
  RecalcStatus();
}

void cChara::LearnDueSkills(int nLevel) {
  SKILL_HOLDER holder = Holder();
  for (std::size_t k = 0; k < m_vecLearnSkill.size();) {
    const cLearnSkill learn = m_vecLearnSkill[k];
    if (learn.m_nSkill != 0 && learn.m_nLevel > nLevel) {
      ++k;
      continue;
    }
    if (learn.m_nSkill != 0) {
      const bool sameAllowed = learn.m_nList >= 0 && learn.m_nList < g_vecSkillList.Count() &&
                               g_vecSkillList[static_cast<std::size_t>(learn.m_nList)].m_bSameSkill;
      PlaceSkill(holder, learn.m_nList, learn.m_nSkill, !sameAllowed);
    }
    m_vecLearnSkill.erase(m_vecLearnSkill.begin() + static_cast<std::ptrdiff_t>(k));
  }
}

void cChara::GainEX(int bPreview) {
  if (m_nLevel >= m_nLevelMax) {
    m_nLevel = m_nLevelMax;
    m_nEX = 0;
  } else {
    while (m_nEX >= 100) {
      // Growth tables end at the limit level; further experience has nothing to add.
      if (m_nLevel >= m_nLevelMax) {
        m_nEX = 0;
        break;
      }
      for (int i = 0; i < kStatusCount; ++i) {
        const long long s = static_cast<long long>(m_anFrac[i]) + At((*m_avecGrow)[i], m_nLevel) + At((*m_avecRandomGrow)[i], m_nLevel);
        const long long q = s / 100;
        const long long gain = s < 0 ? q - 1 : q;
        m_anFrac[i] = static_cast<int>(s < 0 ? s % 100 + 100 : s % 100);
        m_aParam[i].m_nBase = ClampStatus(m_aParam[i].m_nBase + gain, i);
      }
      ++m_nLevel;
      m_nEX -= 100;
      if (!bPreview) {
        LearnDueSkills(m_nLevel);
      } else if (m_nLevel >= m_nLevelMax) {
        m_nEX = 0;
        for (int i = 0; i < kStatusCount; ++i) m_aParam[i].m_nBase = ClampStatus(m_anBaseFinal[i], i);
        break;
      }
    }
  }
  if (m_aParam[0].m_nBase <= 0) m_aParam[0].m_nBase = 1;
  RecalcStatus();
}

void cChara::LevelTo(int nLevel, int nEX, int bPreview, int bKeep) {
  const bool randomFractions = !m_bEnemy && m_bRandomGrowth && !bPreview;
  for (int i = 0; i < kStatusCount; ++i) {
    if (randomFractions && bKeep) {
      m_anFrac[i] = m_anFracInit[i];
    } else {
      m_anFrac[i] = m_anFracInit[i] = randomFractions ? CharaRandBelow(91) : 50;
    }
    m_aParam[i].m_nBase = m_anBaseInit[i];
  }
  m_nLevel = 1;
  m_nEX = std::min(nLevel, m_nLevelMax) * 100 + nEX - 100;
  GainEX(bPreview);
  if (bPreview) {
    m_aParam[0].m_nValue = m_aParam[0].m_nBase;
    m_aParam[1].m_nValue = m_aParam[1].m_nBase;
  }
}

void cChara::ApplyRates(const int* anRate, int bAll) {
  for (int i = 0; i < kStatusCount; ++i) {
    if (!bAll && m_anInit[i] != 0) continue;
    m_aParam[i].m_nBase = ClampStatus(StatusPercent(m_aParam[i].m_nBase, anRate[i]), i);
    m_aParam[i].m_nValue = m_aParam[i].m_nBase;
  }
  RecalcStatus();
}

void cChara::RecalcStatus() {
  for (int i = 2; i < kStatusCount; ++i) m_aParam[i].m_nValue = m_aParam[i].m_nBase;

  // The nine-step effect of one skill: HP and SP are only kept inside their ceilings.
  auto applyEffect = [&](const int* effect, int percent) {
    for (int i = 0; i < kStatusCount; ++i) {
      cParam& p = m_aParam[i];
      if (i < 2) {
        p.m_nBase = ClampStatus(p.m_nBase, i);
        p.m_nValue = ClampStatus(p.m_nValue, i);
      } else {
        const long long add = percent ? StatusPercent(p.m_nBase, effect[i]) : effect[i];
        p.m_nValue = ClampStatus(p.m_nValue + add, i);
      }
    }
  };
  // The places are read where they may be shared; only the one change below edits them.
  auto forEachPlace = [&](auto visit) {
    const PLACE_TABLE& slots = *m_vecvecSlot;
    for (std::size_t list = 0; list < slots.size(); ++list) {
      for (std::size_t i = 0; i < slots[list].size(); ++i) {
        const cSkill* skill = FindSkill(static_cast<int>(list), slots[list][i].m_nSkill);
        if (skill != nullptr) visit(list, i, slots[list][i], *skill);
      }
    }
  };

  forEachPlace([&](std::size_t, std::size_t, const cAcqSkill&, const cSkill& skill) {
    if (skill.m_nKind == 7) m_aParam[2].m_nValue = ClampStatus(static_cast<long long>(m_aParam[2].m_nValue) + skill.m_nEffectValue, 2);
    if (skill.m_nKind == 8) m_aParam[4].m_nValue = ClampStatus(static_cast<long long>(m_aParam[4].m_nValue) + skill.m_nEffectValue, 4);
    if (IsEquipmentKind(skill.m_nKind)) applyEffect(skill.m_anSubEffectA, skill.m_bSubEffectAPercent);
  });
  if (g_System.m_nBattleMode != kAutoBattle) return;

  bool checked = false;
  forEachPlace([&](std::size_t list, std::size_t i, const cAcqSkill& place, const cSkill& skill) {
    if (checked || !place.m_bEquip) return;
    checked = true;
    const bool active = skill.m_nID != 0 && !IsEquipmentKind(skill.m_nKind) && skill.m_bUseBattleSkill;
    if (!active) m_vecvecSlot.Edit()[list][i].m_bEquip = 0;
  });
  forEachPlace([&](std::size_t, std::size_t, const cAcqSkill& place, const cSkill& skill) {
    if (place.m_bEquip && !IsEquipmentKind(skill.m_nKind)) applyEffect(skill.m_anSubEffectB, skill.m_bSubEffectBPercent);
  });
}
