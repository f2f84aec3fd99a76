#pragma once

#include <QString>

// The engine's voice: one small list of lines per state and case. Each line is built from the
// acting man's names and literal pieces. The acting man is the owner of the state, so in a
// defence state he is the defender. Most lines end in a blank because the lines of one man run
// on in one comment; a line ending in "..." runs straight into the next piece.
enum class CommentaryList {
    // the attacker decides on a range; written at once
    AtkOut_ToIn,              // State_Atk_Out, going to State_Atk_In
    AtkOut_ToOutAttack,       // State_Atk_Out, going to State_Atk_OutAttack
    AtkIn_ToOut,              // State_Atk_In, going to State_Atk_Out
    AtkIn_ToClinch,           // State_Atk_In, going to State_Atk_Clinch
    AtkIn_ToInAttack,         // State_Atk_In, going to State_Atk_InAttack
    AtkClinch_ToIn,           // State_Atk_Clinch, going to State_Atk_In
    AtkClinch_ToClinchAttack, // State_Atk_Clinch, going to State_Atk_ClinchAttack

    // the attacker is sent back by a successful stop; written at once (three lines each)
    AtkIn_OnEvOut,    // State_Atk_In on EvOut
    AtkIn_OnEvClinch, // State_Atk_In on EvClinch
    AtkClinch_OnEvIn, // State_Atk_Clinch on EvIn
    AtkOut_OnEvIn,    // State_Atk_Out on EvIn

    // strike announcements, left in the pending comment; a strike of two attack states has a list in each
    AtkOutAttack_Jab,            // State_Atk_OutAttack: Jab
    AtkOutAttack_Cross,          // State_Atk_OutAttack: Cross
    AtkOutAttack_LowKick,        // State_Atk_OutAttack: Low Kick
    AtkOutAttack_MidKick,        // State_Atk_OutAttack: Mid Kick
    AtkOutAttack_HighKick,       // State_Atk_OutAttack: High Kick
    AtkOutAttack_FrontKick,      // State_Atk_OutAttack: Front Kick
    AtkInAttack_Hook,            // State_Atk_InAttack: Hook
    AtkInAttack_Cross,           // State_Atk_InAttack: Cross
    AtkInAttack_Uppercut,        // State_Atk_InAttack: Uppercut
    AtkInAttack_LowKick,         // State_Atk_InAttack: Low Kick
    AtkInAttack_Knee,            // State_Atk_InAttack: Knee
    AtkInAttack_BodyPunch,       // State_Atk_InAttack: Body Punch
    AtkClinchAttack_Hook,        // State_Atk_ClinchAttack: Hook
    AtkClinchAttack_Uppercut,    // State_Atk_ClinchAttack: Uppercut
    AtkClinchAttack_Knee,        // State_Atk_ClinchAttack: Knee
    AtkClinchAttack_Elbow,       // State_Atk_ClinchAttack: Elbow
    AtkClinchAttack_DirtyBoxing, // State_Atk_ClinchAttack: Dirty Boxing
    AtkClinchAttack_BodyPunch,   // State_Atk_ClinchAttack: Body Punch

    // the defender follows to a new range, on entering it (the roll is a u100)
    DefIn,     // State_Def_In
    DefOut,    // State_Def_Out
    DefClinch, // State_Def_Clinch

    // a stop by the defender
    DefDefMoveIn_FrontKick,  // State_Def_DefMoveIn, Front Kick
    DefDefMoveIn_Jab,        // State_Def_DefMoveIn, Jab
    DefDefMoveOut_FrontKick, // State_Def_DefMoveOut, Front Kick
    DefDefMoveOut_Jab,       // State_Def_DefMoveOut, Jab
    DefDefMoveClinch_Knee,   // State_Def_DefMoveClinch, Knee
    DefDefMoveClinch_Cross,  // State_Def_DefMoveClinch, Cross

    // outcome of a defence, in the defender's comment
    DefBlockHighPunch_Fails, // State_Def_BlockHighPunch, defence fails
    DefBlockHighPunch_Works, // State_Def_BlockHighPunch, defence works
    DefBlockHighKick_Fails,  // State_Def_BlockHighKick, defence fails
    DefBlockHighKick_Works,  // State_Def_BlockHighKick, defence works
    DefBlockMid_Fails,       // State_Def_BlockMid, defence fails
    DefBlockMid_Works,       // State_Def_BlockMid, defence works
    DefBlockLow_Fails,       // State_Def_BlockLow, defence fails
    DefBlockLow_Works,       // State_Def_BlockLow, defence works
    DefBlockClinch_Fails,    // State_Def_BlockClinch, defence fails
    DefBlockClinch_Works,    // State_Def_BlockClinch, defence works
    DefDodgeHigh_Fails,      // State_Def_DodgeHigh, defence fails
    DefDodgeHigh_Works,      // State_Def_DodgeHigh, defence works
    DefDodgeMid_Fails,       // State_Def_DodgeMid, defence fails
    DefDodgeMid_Works,       // State_Def_DodgeMid, defence works
    DefDodgeLow_Fails,       // State_Def_DodgeLow, defence fails
    DefDodgeLow_Works,       // State_Def_DodgeLow, defence works
    DefDodgeClinch_Fails,    // State_Def_DodgeClinch, defence fails
    DefDodgeClinch_Works,    // State_Def_DodgeClinch, defence works
    DefCounterHigh_Fails,    // State_Def_CounterHigh, defence fails
    DefCounterHigh_Works,    // State_Def_CounterHigh, defence works
    DefCounterMid_Fails,     // State_Def_CounterMid, defence fails
    DefCounterMid_Works,     // State_Def_CounterMid, defence works

    // counter, dodge and return fire
    GenCounterAtk_FrontKick,     // State_Gen_CounterAtk, Front Kick
    GenCounterAtk_Jab,           // State_Gen_CounterAtk, Jab
    GenCounterAtk_Knee,          // State_Gen_CounterAtk, Knee
    GenCounterAtk_Uppercut,      // State_Gen_CounterAtk, Uppercut
    GenDodgeDmg_DodgerTakesOver, // State_Gen_DodgeDmg, the dodger takes over
    GenReturnDmg_HitLetThrough,  // State_Gen_ReturnDmg, the hit he lets through
    GenReturnDmg_Knee,           // State_Gen_ReturnDmg, Knee
    GenReturnDmg_Cross,          // State_Gen_ReturnDmg, Cross
    GenReturnDmg_Uppercut,       // State_Gen_ReturnDmg, Uppercut
    GenReturnDmg_Hook,           // State_Gen_ReturnDmg, Hook
    GenReturnDmg_Jab,            // State_Gen_ReturnDmg, Jab
    GenReturnDmg_HighKick,       // State_Gen_ReturnDmg, High Kick
    GenReturnReceive,            // State_Gen_ReturnReceive

    // count and knockout
    GenKD_CountedOut, // State_Gen_KD, counted out
    GenKD_UpAgain,    // State_Gen_KD, up again
    GenKO,            // State_Gen_KO

    Count
};

class Commentary
{
public:
    // number of lines in the list: five, or three for the lists of being sent back by a stop
    static int size(CommentaryList list);

    // The line of remainder `pick` (index pick % size, a negative pick wraps as well), with L the
    // acting man's last name and F his full name ("first last"). An unknown list gives "".
    static QString line(CommentaryList list, int pick, const QString &lastName, const QString &fullName);

    // The line picked by a roll the caller made (d100, or u100 for the defender's range
    // answers): its remainder by the list's size. Reseeding and rolling are the caller's, so
    // the engine keeps its draws in its own order.
    static QString pickLine(CommentaryList list, int roll, const QString &lastName, const QString &fullName);

    // one step of the referee's count: the number, then "..... "
    static QString countStep(int number);
};
