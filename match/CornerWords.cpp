#include "match/CornerWords.h"

namespace {

struct Instruction {
    unsigned tactics; // a bit for each tactic that offers the line
    const char *text;
    int newTactic;
};

constexpr unsigned when(int t)
{
    return 1u << t;
}

// in the order the corner offers them
constexpr Instruction instructionTable[] = {
    {when(0), "Keep doing what you're doing.", 0},
    {when(0), "Slow down a little, take your time.", 1},
    {when(0), "Press forward and punish him when you can.", 7},
    {when(0), "Knock his head off and let's go home!", 8},
    {when(0), "Keep him away and pick him apart from outside.", 9},
    {when(0), "Stay in close, but avoid the clinch.", 10},
    {when(0), "Grab him and use your clinchwork to grind him down!", 11},
    {when(1), "Keep it slow, but open up when you can.", 0},
    {when(1), "Step it up a little.", 0},
    {when(1), "Don't be so cautious, throw some combos!", 7},
    {when(1), "That's it, keep him on the outside and use your movement.", 9},
    {when(1), "Get in closer, but not too close!", 10},
    {when(1), "Close him and grab a hold of him, control him in the clinch!", 11},
    {when(2), "Stay back and let him make mistakes.", 0},
    {when(2), "Don't turtle up, do something!", 1},
    {when(5), "A bit dazed, but you're doing fine.", 0},
    {when(6), "Caught off guard a bit, but keep at it.", 0},
    {when(5) | when(6), "You're alright, go get him.", 0},
    {when(5) | when(6), "Put your hands up and watch it out there!", 2},
    {when(7), "Keep the pressure on, and look for an opening.", 0},
    {when(7), "Keep it up, but don't get sloppy.", 0},
    {when(7), "Knock him out already!", 8},
    {when(7), "Slow down, don't get reckless.", 1},
    {when(7), "Stay outside, stick and move!", 9},
    {when(7), "Move in and pound on him!", 10},
    {when(7), "Get up close and personal!", 11},
    {when(8), "Finish him!", 0},
    {when(8), "Keep it up, but don't get sloppy.", 0},
    {when(8), "Keep the pressure on, but don't hunt for the KO.", 7},
    {when(8), "Watch it, slow down, let him come forward.", 1},
    {when(9), "Keep him away and pick him apart from outside", 0},
    {when(9), "You've got it, now switch it up a bit.", 0},
    {when(9), "Don't get careless, watch yourself.", 1},
    {when(9), "Don't hang back too much, throw some more!", 7},
    {when(10), "Stick to him and don't let him move around!", 0},
    {when(10), "You've got it, now switch it up a bit.", 0},
    {when(10), "Relax, there's no rush.", 1},
    {when(10), "Work him harder, don't let him breathe!", 7},
    {when(11), "Don't let him move, keep a hold of him!", 0},
    {when(11), "You've got it, now switch it up a bit.", 0},
    {when(11), "Don't rush things, take your time and control him.", 1},
    {when(11), "You've got him, now crush him.", 7},
};

bool offers(const Instruction &row, int tactic)
{
    return tactic >= 0 && tactic < 32 && (row.tactics & when(tactic)) != 0;
}

const char *const staminaLines[] = {
    "He's get plenty of energy to spare.",
    "He's not tired at all.",
    "He's keeping up so far.",
    "He's starting to tire out a bit.",
    "He's really starting to gas himself out.",
    "He's barely standing at this point.",
};

// by part, then by code from 0 (spent) to 4 (fine)
const char *const bodyPartLines[4][5] = {
    {"He's got to protect his head at all costs at this point.",
     "If he doesn't start protecting his head, he'll be in serious trouble.",
     "His head is starting to take some damage. He might want to go for a knockout before thing get serious.",
     "He needs to focus a bit on protecting his head a bit more.", "He's doing a good job protecting his head."},
    {"His body can't take much more punishment.", "His body is taking a pounding. This might become a situation.",
     "His body is starting to show some signs of trouble.", "He could be defending his body a bit better.",
     "His body is still in good shape."},
    {"His arms are wrecked. He needs to slow things down a bit.",
     "His arms are pretty banged up. He should try avoiding attacks instead of blocking them.",
     "His arms are starting to slow down.", "His arms have taken some damage, but look fine for now.",
     "His arms are looking sharp."},
    {"He's on the verge of collapsing on those wobbly legs.", "He's starting to limp a bit. His legs are in bad shape.",
     "His legs are starting to give. He might want to move in close to avoid taking too many low kicks.",
     "His legs are still fine, but are worth looking out for.", "His legs are in good shape."},
};

} // namespace

QStringList CornerWords::instructionsFor(int tactic)
{
    QStringList lines;
    for (const Instruction &row : instructionTable)
        if (offers(row, tactic))
            lines.append(QString::fromUtf8(row.text));
    return lines;
}

int CornerWords::tacticAfter(int tactic, const QString &instruction)
{
    for (const Instruction &row : instructionTable)
        if (offers(row, tactic) && instruction == QLatin1String(row.text))
            return row.newTactic;
    return 0;
}

QString CornerWords::staminaLine(int band)
{
    return band >= 0 && band <= 5 ? QString::fromUtf8(staminaLines[band]) : QString();
}

QString CornerWords::bodyPartLine(BodyPart part, int code)
{
    return code >= 0 && code <= 4 ? QString::fromUtf8(bodyPartLines[part][code]) : QString();
}

int CornerWords::conditionCode(int health, int ceiling)
{
    if (health > ceiling / 2)
        return 4;
    if (health > ceiling / 4)
        return 3;
    if (health > ceiling / 8)
        return 2;
    return health > 0 ? 1 : 0;
}
