// Characters: people built from a table of bodies, heads and weapons, and the monsters
// each with a painter of its own. All are designed in a 48-unit cell and lit from the
// top left; the pose of a frame moves limbs and weapons, and hurt and fallen frames are
// made from the standing figure.

#include "art/figures.h"

#include <algorithm>
#include <cmath>

#include "art/art_layout.h"
#include "art/sheets.h"

namespace art {
namespace {

constexpr float kDesign = 48.f;
constexpr float kPi = 3.14159265f;

const Col kTeamColours[] = {Hex(0x3A66D4), Hex(0xCC3A38), Hex(0x3C9C46), Hex(0xDCAE2C)};
const Col kSteel = Hex(0xB4BCC8), kDarkSteel = Hex(0x6A7280), kGold = Hex(0xE0B840), kWood = Hex(0x8A5A2E);
const Col kEye = Hex(0x2A2030);

struct cPose {
  float bob = 0;       // body height change
  int step = 0;        // -1, 0, 1: which leg is lifted
  float swing = -80;   // weapon angle in degrees, 0 pointing right, -90 up
  float lunge = 0;     // sideways shift of the whole figure, towards the weapon hand
  float lift = 0;      // the weapon hand raised
  bool hurt = false;
  bool down = false;
};

cPose PoseOf(int frame) {
  using namespace TemplateArt;
  cPose p;
  switch (frame) {
    case kWalkFrame1: p.bob = -1, p.step = 1, p.swing = -75; break;
    case kWalkFrame3: p.bob = -1, p.step = -1, p.swing = -85; break;
    case kReadyFrame: p.bob = -1, p.swing = -40, p.lunge = -1, p.lift = 6; break;
    case kAttackFrame: p.swing = 15, p.lunge = 3; break;
    case kHurtFrame: p.hurt = true, p.lunge = -3; break;
    case kDownFrame: p.down = true; break;
    default: break;
  }
  return p;
}

enum class eBody { kTunic, kArmour, kRobe, kVest, kLoincloth, kBones };
enum class eHead { kHair, kBandana, kMask, kHelm, kOpenHelm, kHood, kWizardHat, kMitre, kGoblin, kSkull, kCap };
enum class eWeapon { kNone, kSword, kLance, kBow, kStaff, kHolyStaff, kDagger, kClub };

struct cPerson {
  int figure;
  eBody body;
  eHead head;
  eWeapon weapon;
  bool shield, cape;
  std::uint32_t skin, hair;
  std::uint32_t cloth = 0;  // 0: the team colour
};

constexpr cPerson kPeople[] = {
    {TemplateArt::kSwordsman, eBody::kTunic, eHead::kBandana, eWeapon::kSword, false, false, 0xF2C8A0, 0x6A4226},
    {TemplateArt::kKnight, eBody::kArmour, eHead::kHelm, eWeapon::kSword, true, true, 0xF2C8A0, 0x4A3020},
    {TemplateArt::kArcher, eBody::kVest, eHead::kHood, eWeapon::kBow, false, false, 0xF0C49A, 0xB07838},
    {TemplateArt::kMage, eBody::kRobe, eHead::kWizardHat, eWeapon::kStaff, false, false, 0xF2CCA8, 0xD8D8E0},
    {TemplateArt::kPriest, eBody::kRobe, eHead::kMitre, eWeapon::kHolyStaff, false, false, 0xF4D0AE, 0xC89858},
    {TemplateArt::kThief, eBody::kVest, eHead::kMask, eWeapon::kDagger, false, false, 0xE4B48A, 0x2A2A32, 0x44424E},
    {TemplateArt::kLancer, eBody::kArmour, eHead::kOpenHelm, eWeapon::kLance, false, false, 0xECC098, 0x5A3A22},
    {TemplateArt::kGoblin, eBody::kLoincloth, eHead::kGoblin, eWeapon::kClub, false, false, 0x7AAE46, 0x000000},
    {TemplateArt::kSkeleton, eBody::kBones, eHead::kSkull, eWeapon::kSword, true, false, 0xE8E2D0, 0x000000},
    {kVillagerFigure, eBody::kTunic, eHead::kCap, eWeapon::kNone, false, false, 0xF2C8A0, 0x7A4A2A, 0x9A7A52},
};

const cPerson* PersonOf(int figure) {
  for (const cPerson& p : kPeople)
    if (p.figure == figure) return &p;
  return nullptr;
}

Col Light(Col c, float f) { return Mix(c, Hex(0xFFFFFF), f); }

void Weapon(cSketch& s, eWeapon weapon, float hx, float hy, float degrees, Col team) {
  const float a = degrees * kPi / 180, dx = std::cos(a), dy = std::sin(a);
  auto along = [&](float d) { return Pt{hx + dx * d, hy + dy * d}; };
  switch (weapon) {
    case eWeapon::kSword:
    case eWeapon::kDagger: {
      const float len = weapon == eWeapon::kSword ? 16 : 8;
      const Pt tip = along(len), guard = along(2.5f), back = along(-3);
      s.Stroke(back.x, back.y, guard.x, guard.y, 2, Hex(0x5A3A22));
      s.Stroke(guard.x, guard.y, tip.x, tip.y, 2.6f, Hex(0xDCE4EE));
      s.Stroke(guard.x - dy * 3.5f, guard.y + dx * 3.5f, guard.x + dy * 3.5f, guard.y - dx * 3.5f, 1.8f, kGold);
      break;
    }
    case eWeapon::kLance: {
      const Pt tip = along(22), back = along(-12), head = along(16);
      s.Stroke(back.x, back.y, head.x, head.y, 1.8f, kWood);
      s.Poly({{tip.x, tip.y}, {head.x - dy * 2.5f, head.y + dx * 2.5f}, {head.x + dy * 2.5f, head.y - dx * 2.5f}},
             Hex(0xDCE4EE), 0.2f);
      s.Stroke(head.x, head.y, head.x - dx * 2, head.y - dy * 2, 3, team);
      break;
    }
    case eWeapon::kBow: {
      // Held upright beside the body; the swing only tilts it a little.
      const float tilt = std::clamp((degrees + 80) / 6, -4.f, 4.f);
      Pt last{};
      for (int n = 0; n <= 8; ++n) {
        const float t = -1 + n / 4.f;
        const Pt p{hx + 4 * std::cos(t * 1.1f) - 2 + tilt * t, hy + t * 12};
        if (n) s.Stroke(last.x, last.y, p.x, p.y, 2, kWood);
        last = p;
      }
      s.Stroke(hx - 2.5f - tilt, hy - 11, hx - 2.5f + tilt, hy + 11, 0.8f, Hex(0xF0F0E0));
      break;
    }
    case eWeapon::kStaff:
    case eWeapon::kHolyStaff: {
      const Pt top = along(14), back = along(-12);
      const bool holy = weapon == eWeapon::kHolyStaff;
      s.Stroke(back.x, back.y, top.x, top.y, 1.8f, holy ? kGold : kWood);
      if (holy) {
        s.Ellipse(top.x, top.y - 1, 3.2f, 3.2f, kGold, 0.3f);
        s.Ellipse(top.x, top.y - 1, 1.6f, 1.6f, Hex(0xFFF4C0), 0.f);
      } else {
        s.Ellipse(top.x, top.y - 1, 3, 3, Light(team, 0.45f), 0.45f);
      }
      break;
    }
    case eWeapon::kClub: {
      const Pt tip = along(13), back = along(-2);
      s.Stroke(back.x, back.y, tip.x, tip.y, 2.5f, Hex(0x7A4E28));
      s.Stroke(along(8).x, along(8).y, tip.x, tip.y, 4.5f, Hex(0x8A5A30), 0.3f);
      break;
    }
    case eWeapon::kNone: break;
  }
}

void Head(cSketch& s, const cPerson& p, Col team, bool hurt) {
  const Col skin = Hex(p.skin), hair = Hex(p.hair);
  const float cx = 24, cy = 14;
  auto eyes = [&](float y) {
    if (hurt) {
      s.Stroke(20, y, 22.5f, y + 1, 1, kEye), s.Stroke(28, y, 25.5f, y + 1, 1, kEye);
    } else {
      s.Rect(20.3f, y - 1, 1.7f, 2.6f, kEye, 0.f), s.Rect(26, y - 1, 1.7f, 2.6f, kEye, 0.f);
    }
  };
  switch (p.head) {
    case eHead::kHood:
      s.Ellipse(cx, cy - 1, 9.5f, 9.5f, Scale(team, 0.8f), 0.35f);
      s.Ellipse(cx, cy + 1.5f, 6.5f, 6.5f, skin, 0.25f);
      s.Poly({{cx - 7, cy - 3}, {cx, cy - 6}, {cx + 7, cy - 3}, {cx + 5, cy - 4.5f}, {cx - 5, cy - 4.5f}},
             Scale(team, 0.7f), 0.1f);
      eyes(cy + 1.5f);
      return;
    case eHead::kHelm:
      s.Ellipse(cx, cy, 8, 8, kSteel, 0.45f);
      s.Rect(cx - 6, cy - 0.5f, 12, 2, Hex(0x2A2A34), 0.f);
      s.Rect(cx - 0.8f, cy + 1, 1.6f, 4, Hex(0x2A2A34), 0.f);
      s.Ellipse(cx, cy - 9.5f, 2.5f, 4, team, 0.3f);
      s.Ellipse(cx + 2, cy - 11, 3, 2.2f, Light(team, 0.2f), 0.3f);
      return;
    case eHead::kSkull:
      s.Ellipse(cx, cy - 0.5f, 7.5f, 7.5f, skin, 0.35f);
      s.Rect(cx - 4, cy + 4, 8, 4, skin, 0.3f);
      s.Ellipse(cx - 3, cy + 0.5f, 2.2f, 2.4f, Hex(0x2A1E24), 0.f);
      s.Ellipse(cx + 3, cy + 0.5f, 2.2f, 2.4f, Hex(0x2A1E24), 0.f);
      if (!hurt) s.Rect(cx - 3.5f, cy, 1, 1, Hex(0xFF5040), 0.f), s.Rect(cx + 2.5f, cy, 1, 1, Hex(0xFF5040), 0.f);
      for (float x = cx - 3; x <= cx + 3; x += 2) s.Rect(x, cy + 5, 0.8f, 2.5f, Hex(0x6A6458), 0.f);
      return;
    default: break;
  }
  if (p.head == eHead::kGoblin) {
    s.Poly({{cx - 6, cy}, {cx - 13, cy - 5}, {cx - 6, cy + 4}}, skin, 0.2f);
    s.Poly({{cx + 6, cy}, {cx + 13, cy - 5}, {cx + 6, cy + 4}}, skin, 0.2f);
  }
  s.Ellipse(cx, cy, 7.5f, 7.5f, skin, 0.3f);
  switch (p.head) {
    case eHead::kHair:
    case eHead::kBandana:
    case eHead::kMask:
      s.Ellipse(cx, cy - 4, 8, 4.5f, hair, 0.3f);
      s.Rect(cx - 8, cy - 4, 2.5f, 7, hair, 0.2f);
      s.Rect(cx + 5.5f, cy - 4, 2.5f, 7, hair, 0.2f);
      if (p.head == eHead::kBandana) {
        s.Rect(cx - 8, cy - 4.5f, 16, 2.6f, team, 0.2f);
        s.Poly({{cx + 7, cy - 4}, {cx + 12, cy - 1}, {cx + 10, cy + 1}, {cx + 7, cy - 2}}, Scale(team, 0.85f), 0.1f);
      }
      if (p.head == eHead::kMask) {
        s.Poly({{cx - 7.5f, cy + 2.5f}, {cx + 7.5f, cy + 2.5f}, {cx + 5, cy + 7.5f}, {cx - 5, cy + 7.5f}}, team, 0.2f);
        s.Poly({{cx + 6, cy + 3}, {cx + 12, cy + 7}, {cx + 9, cy + 9}}, Scale(team, 0.8f), 0.1f);
      }
      break;
    case eHead::kOpenHelm:
      s.Ellipse(cx, cy - 3, 8.5f, 6, kSteel, 0.45f);
      s.Rect(cx - 8.5f, cy - 3, 17, 1.8f, kDarkSteel, 0.f);
      s.Rect(cx - 0.8f, cy - 2, 1.6f, 4.5f, kDarkSteel, 0.f);
      s.Rect(cx - 1.5f, cy - 12, 3, 4, team, 0.2f);
      break;
    case eHead::kWizardHat:
      s.Ellipse(cx, cy - 4, 12, 2.8f, Scale(team, 0.85f), 0.2f);
      s.Poly({{cx - 7, cy - 5}, {cx + 7, cy - 5}, {cx + 6, cy - 13}, {cx + 11, cy - 19}, {cx + 1, cy - 15}}, team, 0.3f);
      s.Rect(cx - 7, cy - 7, 14, 2, kGold, 0.1f);
      s.Rect(cx - 7.5f, cy - 3, 2.5f, 7, hair, 0.2f), s.Rect(cx + 5, cy - 3, 2.5f, 7, hair, 0.2f);
      break;
    case eHead::kMitre:
      s.Poly({{cx - 7, cy - 4}, {cx - 6, cy - 13}, {cx, cy - 17}, {cx + 6, cy - 13}, {cx + 7, cy - 4}},
             Hex(0xF4F2EA), 0.3f);
      s.Rect(cx - 0.8f, cy - 14, 1.6f, 8, team, 0.f);
      s.Rect(cx - 3, cy - 11, 6, 1.6f, team, 0.f);
      s.Rect(cx - 7, cy - 5, 14, 1.8f, kGold, 0.f);
      break;
    case eHead::kCap:
      s.Ellipse(cx, cy - 4, 8, 4.5f, hair, 0.3f);
      s.Ellipse(cx, cy - 6, 8.5f, 3.5f, Hex(0x6A8A4A), 0.3f);
      break;
    case eHead::kGoblin:
      s.Rect(cx - 5, cy + 3.5f, 10, 1.5f, Hex(0x3A2A20), 0.f);
      s.Rect(cx - 3.5f, cy + 3.5f, 1.2f, 2, Hex(0xF0F0E0), 0.f), s.Rect(cx + 2.3f, cy + 3.5f, 1.2f, 2, Hex(0xF0F0E0), 0.f);
      break;
    default: break;
  }
  eyes(cy + 1);
  if (p.head != eHead::kGoblin && p.head != eHead::kMask && !hurt) s.Rect(cx - 1.5f, cy + 4.5f, 3, 0.9f, Scale(skin, 0.7f), 0.f);
}

void Person(cSketch& s, const cPerson& p, Col team, const cPose& pose) {
  const Col skin = Hex(p.skin);
  const bool bony = p.body == eBody::kBones;
  const Col cloth = p.cloth ? Hex(p.cloth) : team;
  const Col legs = bony ? skin : p.body == eBody::kArmour ? kDarkSteel : Hex(0x4A3A30);
  const Col boots = bony ? skin : Hex(0x4A2E1C);
  s.Offset(pose.lunge, pose.bob);
  if (p.cape) s.Poly({{17, 21}, {31, 21}, {35, 42}, {13, 42}}, Scale(team, 0.6f), 0.2f);
  // Legs: the lifted one is shorter.
  if (p.body != eBody::kRobe) {
    for (int side = 0; side < 2; ++side) {
      const float x = side ? 25.5f : 18.5f;
      const float lift = (pose.step == (side ? 1 : -1)) ? 2.f : 0.f;
      s.Rect(x, 33, 4, 9 - lift - pose.bob, legs, 0.25f);
      s.Rect(x - 0.5f, 41 - lift - pose.bob, 5, 3, boots, 0.25f);
    }
  } else {
    s.Rect(18.5f, 41 - pose.bob, 4.5f, 3, Hex(0x4A2E1C), 0.2f);
    s.Rect(25, 41 - (pose.step ? 1.f : 0.f) - pose.bob, 4.5f, 3, Hex(0x4A2E1C), 0.2f);
  }
  // Body.
  switch (p.body) {
    case eBody::kRobe:
      s.Poly({{17, 21}, {31, 21}, {34.5f, 42}, {13.5f, 42}}, cloth, 0.35f);
      s.Rect(22.8f, 22, 2.4f, 20, Light(cloth, 0.35f), 0.f);
      s.Rect(14, 40.5f, 20, 1.5f, kGold, 0.f);
      break;
    case eBody::kArmour:
      s.Poly({{16, 21}, {32, 21}, {32, 35}, {16, 35}}, kSteel, 0.4f);
      s.Poly({{20, 22}, {28, 22}, {28, 36}, {24, 38}, {20, 36}}, team, 0.25f);
      s.Ellipse(16.5f, 23, 4, 3.5f, kSteel, 0.4f), s.Ellipse(31.5f, 23, 4, 3.5f, kSteel, 0.4f);
      break;
    case eBody::kBones:
      s.Rect(22.8f, 21, 2.4f, 13, skin, 0.2f);
      for (float y = 23; y < 31; y += 2.6f) s.Stroke(18, y, 30, y, 1.2f, skin);
      s.Poly({{19, 31}, {29, 31}, {30, 35}, {18, 35}}, Scale(team, 0.7f), 0.2f);  // rag
      break;
    case eBody::kLoincloth:
      s.Ellipse(24, 28, 7.5f, 7.5f, skin, 0.35f);
      s.Poly({{17, 31}, {31, 31}, {29, 38}, {24, 36}, {19, 38}}, team, 0.25f);
      break;
    case eBody::kTunic:
    case eBody::kVest:
      s.Poly({{16.5f, 21}, {31.5f, 21}, {33, 35}, {15, 35}}, cloth, 0.35f);
      if (p.body == eBody::kVest) s.Poly({{21, 21}, {27, 21}, {24, 27}}, Hex(0xE8DCC0), 0.1f);
      s.Rect(15.5f, 30, 17, 2, Hex(0x5A3A20), 0.f);
      s.Rect(23, 30, 2, 2, kGold, 0.f);
      break;
  }
  // The off arm, and the shield on it.
  const Col sleeve = p.body == eBody::kArmour ? kSteel : bony || p.body == eBody::kLoincloth ? skin : cloth;
  s.Stroke(15.5f, 23, 13.5f, 31, 3.5f, sleeve, 0.2f);
  s.Ellipse(13.5f, 32, 2, 2, skin, 0.2f);
  if (p.shield) {
    s.Poly({{7, 25}, {17, 25}, {17, 33}, {12, 39}, {7, 33}}, kSteel, 0.4f);
    s.Poly({{8.5f, 26.5f}, {15.5f, 26.5f}, {15.5f, 32.5f}, {12, 37}, {8.5f, 32.5f}}, team, 0.35f);
    s.Rect(11.3f, 27.5f, 1.4f, 7, kGold, 0.f), s.Rect(9.5f, 29.5f, 5, 1.4f, kGold, 0.f);
  }
  Head(s, p, team, pose.hurt);
  // The weapon arm last, so that the weapon stands in front.
  const float a = pose.swing * kPi / 180;
  const float hx = 33.5f + 2 * std::cos(a), hy = 27 + 3 * std::sin(a) - pose.lift;
  s.Stroke(32, 23, hx, hy, 3.5f, sleeve, 0.2f);
  Weapon(s, p.weapon, hx, hy, pose.swing, team);
  s.Ellipse(hx, hy, 2, 2, skin, 0.2f);
}

// The monsters. Each gets the team colour and the pose.
void Slime(cSketch& s, Col team, const cPose& p) {
  const float squash = p.step ? 0.1f : p.bob ? -0.05f : 0;
  const float rx = 14 * (1 + squash), ry = 10 * (1 - squash);
  s.Offset(p.lunge, 0);
  s.Poly({{24 - rx, 43}, {24 + rx, 43}, {24 + rx * 0.7f, 36 - ry}, {24, 43 - 2.6f * ry}, {24 - rx * 0.7f, 36 - ry}},
         team, 0.f);
  s.Ellipse(24, 43 - ry, rx, ry, team, 0.45f);
  s.Ellipse(24, 43 - 1.8f * ry, rx * 0.5f, ry * 0.7f, team, 0.3f);
  s.Ellipse(18, 43 - 1.5f * ry, 3, 2, Light(team, 0.7f), 0.f);
  const float ey = 43 - ry;
  if (p.hurt) {
    s.Stroke(18, ey - 1, 21, ey, 1.2f, kEye), s.Stroke(30, ey - 1, 27, ey, 1.2f, kEye);
  } else {
    s.Ellipse(19.5f, ey, 1.6f, 2.4f, kEye, 0.f), s.Ellipse(28.5f, ey, 1.6f, 2.4f, kEye, 0.f);
    s.Rect(19, ey - 1.5f, 1, 1, Hex(0xFFFFFF), 0.f), s.Rect(28, ey - 1.5f, 1, 1, Hex(0xFFFFFF), 0.f);
  }
  s.Rect(22.5f, ey + 3.5f, 3, 1, Scale(team, 0.45f), 0.f);
}

void Wolf(cSketch& s, Col team, const cPose& p) {
  const Col fur = Mix(Hex(0x8C8C94), team, 0.25f), dark = Scale(fur, 0.7f), belly = Light(fur, 0.4f);
  s.Offset(p.lunge, p.bob);
  s.Stroke(36, 30, 43, 20, 4, fur, 0.2f);  // tail
  s.Ellipse(43, 20, 2.5f, 3, belly, 0.f);
  const float lift = p.step ? 2.f : 0.f;
  static const float kLegs[][2] = {{16, 0}, {21, 1}, {30, 0}, {35, 1}};
  for (const auto& leg : kLegs) {
    const float up = (static_cast<int>(leg[1]) == (p.step > 0)) ? lift : 0;
    s.Rect(leg[0] - 1.8f, 31, 3.6f, 12 - up, leg[1] ? dark : fur, 0.2f);
  }
  s.Ellipse(26, 30, 12, 7.5f, fur, 0.4f);
  s.Ellipse(24, 33, 8, 3.5f, belly, 0.f);
  s.Ellipse(14, 24, 7, 6.5f, fur, 0.35f);
  s.Poly({{9, 23}, {2.5f, 26}, {3, 29}, {10, 29}}, fur, 0.2f);
  s.Ellipse(3, 26.5f, 1.5f, 1.5f, kEye, 0.f);
  s.Poly({{10, 20}, {11, 12}, {15, 18}}, dark, 0.2f);
  s.Poly({{15, 19}, {18, 11}, {20, 19}}, fur, 0.2f);
  if (p.hurt) s.Stroke(9, 22.5f, 12, 23.5f, 1.2f, kEye);
  else s.Ellipse(10.5f, 23, 1.3f, 1.3f, Hex(0xF0D040), 0.f), s.Rect(10, 22.5f, 1, 1, kEye, 0.f);
  s.Poly({{9, 29}, {18, 30}, {17, 32}, {10, 31}}, team, 0.2f);  // collar
  s.Poly({{4, 28.5f}, {9, 28.5f}, {8, 30}, {5, 30}}, Hex(0xF4F0E8), 0.f);
}

void Dragon(cSketch& s, Col team, const cPose& p) {
  const Col scale = team, dark = Scale(team, 0.62f), belly = Mix(team, Hex(0xF0E0A0), 0.55f);
  s.Offset(p.lunge, p.bob);
  const float flap = p.step ? 3.f : p.bob ? -2.f : 0.f;
  s.Poly({{30, 24}, {46, 6 + flap}, {44, 14 + flap}, {47, 20 + flap}, {40, 22 + flap}, {42, 28}, {32, 30}}, dark, 0.2f);
  s.Poly({{20, 24}, {4, 8 + flap}, {7, 15 + flap}, {2, 21 + flap}, {9, 22 + flap}, {7, 28}, {18, 30}}, dark, 0.2f);
  s.Stroke(32, 40, 44, 42, 4.5f, scale, 0.2f);
  s.Poly({{43, 39}, {47, 42}, {43, 45}}, dark, 0.f);
  s.Ellipse(25, 33, 11, 10, scale, 0.4f);
  s.Ellipse(24, 35, 6, 7, belly, 0.25f);
  for (float y = 31; y < 41; y += 2.5f) s.Rect(19, y, 10, 0.7f, Scale(belly, 0.8f), 0.f);
  s.Rect(16, 40, 5, 4, dark, 0.2f), s.Rect(29, 40, 5, 4, dark, 0.2f);
  s.Stroke(22, 26, 19, 18, 7, scale, 0.3f);  // neck
  s.Ellipse(19, 15, 7, 6, scale, 0.4f);
  s.Poly({{14, 14}, {7, 17}, {8, 21}, {16, 20}}, scale, 0.3f);  // snout
  s.Poly({{15, 10}, {12, 3}, {18, 9}}, Hex(0xECE4CC), 0.2f);
  s.Poly({{21, 9}, {24, 2}, {24, 11}}, Hex(0xECE4CC), 0.2f);
  s.Rect(8.5f, 17, 1.2f, 1.2f, kEye, 0.f);
  if (p.hurt) s.Stroke(15, 13, 18, 14.5f, 1.2f, kEye);
  else s.Ellipse(17, 14, 1.8f, 1.6f, Hex(0xF8E040), 0.f), s.Rect(17, 13.3f, 0.9f, 1.6f, kEye, 0.f);
  if (p.swing > 0) s.Poly({{8, 19}, {0, 16}, {1, 24}}, Hex(0xFF8A20), 0.2f);  // fire breath on the blow
}

void Bat(cSketch& s, Col team, const cPose& p) {
  const Col body = Hex(0x4A3A5A), wing = Mix(Hex(0x5A4470), team, 0.4f);
  const float flap = p.step ? 6.f : p.bob ? -5.f : 0.f;
  s.Offset(p.lunge, -4 + p.bob * 2);
  for (int side = -1; side <= 1; side += 2) {
    const float dir = static_cast<float>(side);
    s.Poly({{24 + dir * 4, 24},
            {24 + dir * 20, 14 + flap},
            {24 + dir * 22, 26 + flap * 0.6f},
            {24 + dir * 17, 24 + flap * 0.4f},
            {24 + dir * 13, 30},
            {24 + dir * 9, 27},
            {24 + dir * 5, 31}},
           wing, 0.2f);
    s.Stroke(24 + dir * 4, 24, 24 + dir * 20, 14 + flap, 1.2f, body);
  }
  s.Ellipse(24, 27, 6, 7, body, 0.35f);
  s.Ellipse(24, 20, 5, 4.5f, body, 0.35f);
  s.Poly({{19.5f, 18}, {20, 12}, {23, 17}}, body, 0.2f);
  s.Poly({{28.5f, 18}, {28, 12}, {25, 17}}, body, 0.2f);
  if (p.hurt) s.Stroke(21, 19.5f, 23, 20.5f, 1, Hex(0xFF6060)), s.Stroke(27, 19.5f, 25, 20.5f, 1, Hex(0xFF6060));
  else s.Rect(21, 19.5f, 1.6f, 1.6f, Hex(0xFF4040), 0.f), s.Rect(25.4f, 19.5f, 1.6f, 1.6f, Hex(0xFF4040), 0.f);
  s.Rect(22.5f, 23, 1, 1.5f, Hex(0xF4F0E8), 0.f), s.Rect(24.5f, 23, 1, 1.5f, Hex(0xF4F0E8), 0.f);
}

void Golem(cSketch& s, Col team, const cPose& p) {
  const Col stone = Hex(0x8E8272), dark = Hex(0x675D50), glow = Light(team, 0.35f);
  s.Offset(p.lunge, p.bob);
  const float lift = p.step ? 1.5f : 0.f;
  s.Rect(15, 35, 7, 9 - lift, dark, 0.25f), s.Rect(26, 35, 7, 9 - (p.step ? 0 : lift), dark, 0.25f);
  s.Poly({{12, 18}, {36, 18}, {34, 37}, {14, 37}}, stone, 0.4f);
  s.Stroke(16, 26, 30, 27, 0.8f, dark), s.Stroke(20, 32, 32, 31, 0.8f, dark);
  s.Poly({{24, 22}, {27, 26}, {24, 30}, {21, 26}}, glow, 0.f);  // the rune
  const float reach = p.swing > 0 ? -6 : p.swing < -100 ? 4 : 0;
  s.Rect(5, 19 + reach * 0.3f, 8, 17, stone, 0.35f), s.Rect(35, 19 + reach, 8, 17, stone, 0.35f);
  s.Rect(4, 34 + reach * 0.3f, 10, 6, dark, 0.3f), s.Rect(34, 34 + reach, 10, 6, dark, 0.3f);
  s.Rect(18, 9, 12, 10, stone, 0.35f);
  if (p.hurt) s.Rect(20, 13, 8, 1, kEye, 0.f);
  else s.Rect(20, 12.5f, 2.5f, 2, glow, 0.f), s.Rect(25.5f, 12.5f, 2.5f, 2, glow, 0.f);
}

struct cMonster {
  int figure;
  void (*paint)(cSketch&, Col, const cPose&);
};

constexpr cMonster kMonsters[] = {
    {TemplateArt::kSlime, Slime}, {TemplateArt::kWolf, Wolf},   {TemplateArt::kDragon, Dragon},
    {TemplateArt::kBat, Bat},     {TemplateArt::kGolem, Golem},
};

// The fallen frame: the standing figure pressed flat towards the ground and dimmed.
void Collapse(cCanvas& cell, int size) {
  cCanvas copy = cell;
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x) cell.Erase(x, y);
  const int keep = size * 55 / 100;
  for (int y = size - keep; y < size; ++y) {
    const int from = size - 1 - (size - 1 - y) * size / keep;
    for (int x = 0; x < size; ++x)
      if (copy.Opaque(x, from)) cell.Put(x, y, Scale(copy.At(x, from), 0.7f));
  }
}

}  // namespace

void DrawFigure(cCanvas& sheet, int x, int y, int size, int team, int figure, int frame) {
  cCanvas cell(size, size);
  cSketch s(cell, 0, 0, size, size, size / kDesign);
  const cPose pose = PoseOf(frame);
  const Col colour = kTeamColours[std::clamp(team, 0, 3)];
  if (const cPerson* person = PersonOf(figure)) {
    Person(s, *person, colour, pose);
  } else {
    for (const cMonster& m : kMonsters)
      if (m.figure == figure) m.paint(s, colour, pose);
  }
  if (pose.down) Collapse(cell, size);
  if (pose.hurt)
    for (int j = 0; j < size; ++j)
      for (int i = 0; i < size; ++i)
        if (cell.Opaque(i, j)) cell.Put(i, j, Mix(cell.At(i, j), Hex(0xFFE8E0), 0.45f));
  Outline(cell, 0, 0, size, size);
  sheet.Paste(cell, 0, 0, size, size, x, y);
}

cCanvas DrawCharacterSheet(int team) {
  const auto size = TemplateArt::kCharacterSize;
  cCanvas sheet(size.width, size.height);
  for (int figure = 1; figure < TemplateArt::kFigureCount; ++figure)
    for (int frame = 0; frame < TemplateArt::kCharaFrameCount; ++frame)
      DrawFigure(sheet, frame * 48, figure * 48, 48, team, figure, frame);
  return sheet;
}

cCanvas DrawMapCharaSheet() {
  const auto size = TemplateArt::kMapCharaSize;
  cCanvas sheet(size.width, size.height);
  for (int team = 0; team < TemplateArt::kTeamCount; ++team)
    for (int figure = 1; figure < TemplateArt::kFigureCount; ++figure) {
      DrawFigure(sheet, team * 64 + 32, figure * 32, 32, team, figure, TemplateArt::kWalkFrame0);
      DrawFigure(sheet, team * 64, figure * 32, 32, team, figure, TemplateArt::kWalkFrame1);
    }
  return sheet;
}

}  // namespace art
