#include "match/Commentary.h"

#include <iterator>

namespace {

// A piece of a line: the acting man's last or full name, or a literal joined as written, with
// its blanks.
enum class Name { Literal, Last, Full };

struct Piece {
    constexpr Piece() = default;
    constexpr Piece(Name n)
        : name(n)
    {
    }
    constexpr Piece(const char *t)
        : text(t)
    {
    }

    Name name = Name::Literal;
    const char *text = nullptr;
};

constexpr Name L = Name::Last;
constexpr Name F = Name::Full;

// a line is at most a literal, a name and a literal, in the order they are joined
struct Line {
    constexpr Line(Piece a, Piece b = {}, Piece c = {})
        : pieces{a, b, c}
    {
    }

    Piece pieces[3];
};

// clang-format off
// State_Atk_Out, going to State_Atk_In
constexpr Line atkOutToIn[] = {
    {L, " looks like he's trying to work his way in..."},
    {L, " presses forward! "},
    {L, " makes his way into the pocket. "},
    {L, " tries to close in. "},
    {L, " wades in, trying to apply a bit of pressure..."},
};

// State_Atk_Out, going to State_Atk_OutAttack
constexpr Line atkOutToOutAttack[] = {
    {L, " keeps circling, looking for an opening. "},
    {L, " seems like he's going to make a move from the outside. "},
    {L, " moves and looks to be timing his offense. "},
    {L, " plants his feet, as if he's about to throw something from long range. "},
    {L, " throws a quick fake..."},
};

// State_Atk_In, going to State_Atk_Out
constexpr Line atkInToOut[] = {
    {L, " creates a bit more space between them. "},
    {L, " backpedals a bit..."},
    {L, " moves out of the pocket. "},
    {L, " takes a step back. "},
    {L, " doesn't seem to want to stay so close..."},
};

// State_Atk_In, going to State_Atk_Clinch
constexpr Line atkInToClinch[] = {
    {L, " reaches out and tries to grab a hold..."},
    {L, " wades in further, trying to get up close and personal. "},
    {L, " moves in for the clinch! "},
    {L, " tries to tie him up! "},
    {"It appears ", L, " wants to close in and turn this into a clinching match! "},
};

// State_Atk_In, going to State_Atk_InAttack
constexpr Line atkInToInAttack[] = {
    {L, " lunges forward! "},
    {L, " looks like he's about to throw something. "},
    {L, " moves forward with bad intentions! "},
    {L, " tees up! "},
    {"Seems like ", L, " is about to launch something nasty! "},
};

// State_Atk_Clinch, going to State_Atk_In
constexpr Line atkClinchToIn[] = {
    {L, " decides things are a bit too close for comfort and moves out. "},
    {L, " isn't quite willing to clinch up..."},
    {L, " backs away from clinch range. "},
    {L, " lets go of the clinch and takes a step back. "},
    {L, " doesn't seem to want to stay clinched up..."},
};

// State_Atk_Clinch, going to State_Atk_ClinchAttack
constexpr Line atkClinchToClinchAttack[] = {
    {"While they're tied up in the clinch, ", L, " lines him up! "},
    {L, " looks like he's in position to throw something..."},
    {L, " makes some sudden movements!. "},
    {L, " shifts his positioning! It looks like he's attacking! "},
    {L, " looks to be attempting something..."},
};

// State_Atk_In on EvOut
constexpr Line atkInOnEvOut[] = {
    {L, " gets pushed back out a bit. "},
    {L, " isn't able to stay in the pocket, as he gets forced out by a hard counter. "},
    {L, " eats a stiff counterattack trying to wade in close! "},
};

// State_Atk_In on EvClinch
constexpr Line atkInOnEvClinch[] = {
    {L, " can't break out of the clinch! "},
    {L, " is forced back into the clinch. "},
    {L, " appears firmly stuck in the clinch, and can't seem to escape. "},
};

// State_Atk_Clinch on EvIn
constexpr Line atkClinchOnEvIn[] = {
    {L, " gets pushed back out into the pocket. "},
    {L, " isn't able to grab a hold. "},
    {L, " faces some resistance trying to grab him! "},
};

// State_Atk_Out on EvIn
constexpr Line atkOutOnEvIn[] = {
    {"That seems to have disrupted ", L, "'s plans a bit. "},
    {L, " can't seem to stay away from him. "},
    {L, " gets drawn back into the pocket. "},
};

// State_Atk_OutAttack: Jab
constexpr Line atkOutAttackJab[] = {
    {L, " whips out a quick jab. "},
    {L, " throws a piston-like jab to keep his opponent at a distance. "},
    {L, " flicks his arm out, attempting to use a stiff jab to snap his opponent's head back. "},
    {L, " aims a hard jab at his opponent's chin. "},
    {L, " throws a hard jab from long range. "},
};

// State_Atk_OutAttack: Cross
constexpr Line atkOutAttackCross[] = {
    {L, " unloads a hard cross at his opponent's head! "},
    {L, " unleashes a powerful right cross from long range! "},
    {L, " torques his body and launches a cross. "},
    {L, " delivers a hard cross. "},
    {L, " finds an opening from the outside and throws a cross. "},
};

// State_Atk_OutAttack: Low Kick
constexpr Line atkOutAttackLowKick[] = {
    {L, " whips a ferocious kick at his opponent's lead leg! "},
    {L, " throws a hard low kick as he circles around outside. "},
    {L, " spins his body and unleashes a powerful low kick! "},
    {L, " attempts to chop his opponent down with a leg kick. "},
    {L, " swings his lead leg around and delivers a low kick. "},
};

// State_Atk_OutAttack: Mid Kick
constexpr Line atkOutAttackMidKick[] = {
    {L, " throws a hard roundhouse kick at his opponent's ribcage! "},
    {L, " pivots on his lead leg and unloads a kick to the body! "},
    {L, " attempts to break his opponent's will with a hard body kick. "},
    {L, " aims and fires a hard kick at his opponent's torso. "},
    {L, " finds an opening from way outside and throws a roundhouse kick to the body. "},
};

// State_Atk_OutAttack: High Kick
constexpr Line atkOutAttackHighKick[] = {
    {L, " throws a high kick aimed right at the side of the head! "},
    {L, " raises his left leg high in the air, attempting a high kick. "},
    {"Whoa! A ferocious high kick, courtesy of ", F, "! "},
    {L, " unleashes a vicious high kick!. "},
    {L, " sees his chance and throws a high kick. "},
};

// State_Atk_OutAttack: Front Kick
constexpr Line atkOutAttackFrontKick[] = {
    {L, " sticks his opponent with a front kick. "},
    {L, " reaches out and places a hard front kick at his opponent's midsection. "},
    {L, " brings his back foot forward to launch a piercing front kick at his opponent's liver! "},
    {L, " extends his lead leg and pokes at his opponent with a stiff front kick. "},
    {L, " flicks his foot out with a front kick to the body. "},
};

// State_Atk_InAttack: Hook
constexpr Line atkInAttackHook[] = {
    {L, " turns his body and unloads a crushing hook! "},
    {L, " loops around with a wide left hook. "},
    {F, " fakes a jab, then throws an vicious right hook! "},
    {L, " throws a quick hook in close quarters. "},
    {L, " crouches a bit, and springs upwards with a right hook from the pocket. "},
};

// State_Atk_InAttack: Cross
constexpr Line atkInAttackCross[] = {
    {L, " unloads a hard cross at his opponent's head! "},
    {F, " unleashes a sudden right cross! He's looking to finish this quickly! "},
    {L, " torques his body and throws a cross from close range. "},
    {L, " delivers a hard cross. "},
    {L, " finds some room in the pocket and throws a cross. "},
};

// State_Atk_InAttack: Uppercut
constexpr Line atkInAttackUppercut[] = {
    {L, " lowers his shoulders, then springs up with a powerful uppercut. "},
    {L, " sticks his feet and unleashes a sudden right uppercut! "},
    {F, " unleashes a wild left uppercut in the pocket! "},
    {L, " manages to find some space to throw a crushing uppercut. "},
    {F, " lets loose with a terrifying uppercut! It looks like he's throwing everything he has into it! "},
};

// State_Atk_InAttack: Low Kick
constexpr Line atkInAttackLowKick[] = {
    {L, " manages to create a bit of distance in the pocket and throw a low kick. "},
    {L, " fakes a punch before switching to a low kick. "},
    {L, " spins his body and unleashes a powerful low kick! "},
    {L, " attempts to chop his opponent down with a leg kick. "},
    {L, " plants his lead leg and throws a crushing low kick at his opponent's legs. "},
};

// State_Atk_InAttack: Knee
constexpr Line atkInAttackKnee[] = {
    {F, " lunges forward with a knee to the body. "},
    {L, " throws a powerful knee directed at his opponent's liver. "},
    {L, " crouches down and springs upwards with a sudden knee to the body! "},
    {L, " targets his opponent's midsection with a knee in the pocket. "},
    {"Wow! It looks as if ", F, " is trying to end this soon, as he throws a ferocious knee in close range! "},
};

// State_Atk_InAttack: Body Punch
constexpr Line atkInAttackBodyPunch[] = {
    {L, " throws a punch to the gut. "},
    {L, " fakes high, then throws a body punch. "},
    {L, " throws a wicked hook to the body! "},
    {L, " unloads a powerful shot at his opponent's body! "},
    {L, " tries to break his opponent's will by throwing a strong hook to the ribcage! "},
};

// State_Atk_ClinchAttack: Hook
constexpr Line atkClinchAttackHook[] = {
    {F, " throws a hook while they're fighting for position in the clinch. "},
    {L, " frees up an arm and manages to throw a hard hook to the head. "},
    {L, " finds an opening, allowing him to throw a left hook! "},
    {L, " manages to throw a hook out of nowhere! "},
    {F, "'s clinch skills are on display here, as he manages to force an opening and throw a hook. "},
};

// State_Atk_ClinchAttack: Uppercut
constexpr Line atkClinchAttackUppercut[] = {
    {F, " manages to come up under his opponent's arms with a vicious uppercut. "},
    {L, " frees up an arm and throws a hard uppercut to his opponent's jaw. "},
    {L, " untangles himself long enough to throw an uppercut. "},
    {L, " throws an uppercut while they jostle for dominant clinch positioning. "},
    {F, " finds room to throw an uppercut. "},
};

// State_Atk_ClinchAttack: Knee
constexpr Line atkClinchAttackKnee[] = {
    {F, " throws a hard knee in the clinch. "},
    {"While the two fighters are tied up, ", F, " unloads a devastating knee strike. "},
    {L, " suddenly pulls his opponent's head down and throws a knee strike to his chest. "},
    {L, " shifts his weight and manages to pull his knee up to his opponent's midsecton! "},
    {"It looks as if ", F, " is trying to wear his opponent down, as he throws a knee in the clinch. "},
};

// State_Atk_ClinchAttack: Elbow
constexpr Line atkClinchAttackElbow[] = {
    {F, " rotates his shoulder and comes down with a hard elbow! "},
    {L, " targets his opponent's temple with an elbow strike. "},
    {L, " twists his body and finds an opening to throw an elbow. "},
    {L, " is clearly intent on controlling things in the clinch, throwing a hard elbow strike to make sure of it. "},
    {F, " finds an opening to throw an elbow strike. "},
};

// State_Atk_ClinchAttack: Dirty Boxing
constexpr Line atkClinchAttackDirtyBoxing[] = {
    {F, " manages to use some dirty boxing to wear down his opponent. "},
    {L, " is showing off his talent in the clinch, as he works his opponent over with some dirty boxing. "},
    {L, " is in control, as he uses his dirty boxing to cause damage. "},
    {L, " pounds away with some dirty boxing. "},
    {F, " maintains neck control as he hammers away with his dirty boxing! "},
};

// State_Atk_ClinchAttack: Body Punch
constexpr Line atkClinchAttackBodyPunch[] = {
    {F, " frees up his arm and goes low, ripping his opponent with a hard body punch. "},
    {L, " uses a hard hook to the body to try and soften his opponent up. "},
    {L, " takes advantage of his position and throws a hard body punch. "},
    {"Using his clinch positioning, ", F, " manages to make room to throw a body hook. "},
    {F, " maintains strong clinch control as he lets loose with a ferocious body punch! "},
};

// State_Def_In
constexpr Line defIn[] = {
    {L, " moves into the pocket. "},
    {L, " wades into close range. "},
    {L, " meets his opponent in the pocket. "},
    {L, " bobs and weaves a bit, until he manages to make his way into the pocket. "},
    {L, " moves into close range. "},
};

// State_Def_Out
constexpr Line defOut[] = {
    {L, " moves backward and creates some distance between himself and his opponent. "},
    {L, " settles back into long range. "},
    {L, " makes some room for himself by moving out and circling. "},
    {L, " circles out. "},
    {L, " backs out, creating some breathing room. "},
};

// State_Def_Clinch
constexpr Line defClinch[] = {
    {L, " moves in and grapples with his opponent. "},
    {L, " decides to turn this match into a clinching match! "},
    {L, "'s his arms with his opponent's, and they are firmly in the clinch. "},
    {L, " steps in and clinches up. "},
    {L, " decides to get intimate, grabbing his opponent into a tight clinch. "},
};

// State_Def_DefMoveIn, Front Kick
constexpr Line defDefMoveInFrontKick[] = {
    {L, " keeps him right where he wants him by piercing him with a quick front kick. "},
    {L, " manages to catch him off guard with a front kick! "},
    {L, " throws a front kick out of nowhere to stop him in his tracks! "},
    {L, " wants to keep this fight exactly where it is, making his intentions known with a hard front kick. "},
    {L, " catches his opponent moving around, punishing him with a stiff front kick to the liver! "},
};

// State_Def_DefMoveIn, Jab
constexpr Line defDefMoveInJab[] = {
    {L, " throws a quick jab, to stun him. "},
    {L, " flicks out a quick counter jab! "},
    {L, " manages to keep the fight right where he wants it by using a stiff jab. "},
    {L, " stops him in his tracks with a hard jab. "},
    {L, " snaps his head back with a jab, forcing him to think twice about it. "},
};

// State_Def_DefMoveOut, Front Kick
constexpr Line defDefMoveOutFrontKick[] = {
    {L, " catches him with a quick front kick. "},
    {L, " manages to catch him off guard with a front kick! "},
    {L, " throws a front kick out of nowhere to stop him in his tracks! "},
    {L, " wants to keep this fight in the pocket, using a hard front kick to make sure it stays that way. "},
    {L, " catches his opponent trying to move away, punishing him with a stiff front kick to the liver! "},
};

// State_Def_DefMoveOut, Jab
constexpr Line defDefMoveOutJab[] = {
    {L, " throws a quick jab, to stop him from getting away. "},
    {L, " flicks out a quick counter jab! "},
    {L, " manages to keep the fight in close range by stunning him with a quick jab. "},
    {L, " stops him in his tracks with a hard jab. "},
    {L, " snaps his head back with a counter jab. "},
};

// State_Def_DefMoveClinch, Knee
constexpr Line defDefMoveClinchKnee[] = {
    {L, " throws a quick knee to catch him coming in. "},
    {L, " knees his attacker in the chest! "},
    {L, " keeps this fight exactly where he wants it, using a hard knee to make sure of it. "},
    {L, " stops him in his tracks with a knee to the midsection. "},
    {L, " catches him coming in with a knee. "},
};

// State_Def_DefMoveClinch, Cross
constexpr Line defDefMoveClinchCross[] = {
    {L, " throws a hard cross, to keep him away. "},
    {L, " stops him dead in his tracks with a counter right! "},
    {L, " avoids the clinch with a hard cross. "},
    {L, " times his cross and manages to stay out of the clinch. "},
    {L, " stuns him with a right cross, forcing him back out. "},
};

// State_Def_BlockHighPunch, defence fails
constexpr Line defBlockHighPunchFails[] = {
    {L, " takes the attack square on the chin! "},
    {L, " didn't manage to get his defense up in time! "},
    {L, "'s defense isn't good enough, and he takes the full brunt of the attack. "},
    {L, " got hammered by that one! "},
    {L, " isn't able to defend himself well enough, and takes the full force of the attack. "},
};

// State_Def_BlockHighPunch, defence works
constexpr Line defBlockHighPunchWorks[] = {
    {L, " manages to block the attack. "},
    {L, " manages to catch the attack right on his gloves. "},
    {L, " blocks the attack successfully. "},
    {L, " is able to bring his gloves up in time to deflect the attack. "},
    {L, " avoids the full brunt of the attack by blocking it. "},
};

// State_Def_BlockHighKick, defence fails
constexpr Line defBlockHighKickFails[] = {
    {L, " gets hammered on the side of his head! "},
    {L, " eats the vicious high kick with full force! "},
    {L, "'s defense isn't good enough, and he takes the full brunt of the attack. "},
    {L, " got hammered by that one! "},
    {L, " isn't able to defend himself well enough, and takes the full force of the attack. "},
};

// State_Def_BlockHighKick, defence works
constexpr Line defBlockHighKickWorks[] = {
    {L, " manages to defend himself against the attack! "},
    {L, " blocks it! "},
    {L, "'s defense manages to save him from taking the full force of that kick. "},
    {L, " catches it on his gloves! "},
    {L, " manages to shield himself from trouble. "},
};

// State_Def_BlockMid, defence fails
constexpr Line defBlockMidFails[] = {
    {L, "'s body takes a pounding! "},
    {L, " takes the full force of that shot to the body. "},
    {L, "'s defense isn't good enough, and he takes the full brunt of the attack. "},
    {L, "'s ribs will be feeling that in the morning! "},
    {L, " isn't able to defend himself well enough, allowing his body to take a pounding. "},
};

// State_Def_BlockMid, defence works
constexpr Line defBlockMidWorks[] = {
    {L, " protects his body. "},
    {L, " manages to prevent his body from being pounded into mush. "},
    {L, "'s defense sees him through, preventing any significant damage from getting through his guard. "},
    {L, " is able to protect his body well. "},
    {L, " blocks the attack, catching it on his arms instead of his body. "},
};

// State_Def_BlockLow, defence fails
constexpr Line defBlockLowFails[] = {
    {L, "'s lead leg gets hammered! "},
    {L, " isn't able to check the attack in time. "},
    {L, " isn't quick enough, and his leg gets pounded. "},
    {L, " is going to be in trouble if he keeps letting his legs take that kind of beating! "},
    {L, " isn't able to defend himself well enough, and takes the full force of the attack. "},
};

// State_Def_BlockLow, defence works
constexpr Line defBlockLowWorks[] = {
    {L, " checks the leg kick. "},
    {L, " manages to get his leg up in time to block the attack. "},
    {L, " defends his legs successfully. "},
    {L, " checks the kick, banging his shin against his opponent's! "},
    {L, " prevents any serious damage to his legs by checking the attack. "},
};

// State_Def_BlockClinch, defence fails
constexpr Line defBlockClinchFails[] = {
    {L, " can't handle himself in the clinch, and gets hit hard! "},
    {L, " didn't manage to get his defense up in time! "},
    {L, "'s defense isn't good enough, and he takes the full brunt of the attack. "},
    {L, " gets hammered! His clinch defense wasn't up to par for that one! "},
    {L, " isn't able to defend himself well enough, and takes the full force of the attack. "},
};

// State_Def_BlockClinch, defence works
constexpr Line defBlockClinchWorks[] = {
    {L, " manages to defend himself! "},
    {L, " uses his clinch positioning to bring his gloves up to meet the attack, blocking it. "},
    {L, "'s clinch defending is on display here, as he manages to stifle the attack. "},
    {L, " blocks the attack! "},
    {L, " manages to block the attack despite being tied up in the clinch. "},
};

// State_Def_DodgeHigh, defence fails
constexpr Line defDodgeHighFails[] = {
    {L, " takes the attack square on the chin! "},
    {L, " didn't manage to get his defense up in time! "},
    {L, "'s defense isn't good enough, and he takes the full brunt of the attack. "},
    {L, " got hammered by that one! "},
    {L, " isn't able to defend himself well enough, and takes the full force of the attack. "},
};

// State_Def_DodgeHigh, defence works
constexpr Line defDodgeHighWorks[] = {
    {L, " ducks out of the way! "},
    {L, " manages to avoid the attack! "},
    {L, "'s head movement is superb, as he successfully dodges the attack. "},
    {L, " manages to avoid it! "},
    {L, " dodges the attack with ease. "},
};

// State_Def_DodgeMid, defence fails
constexpr Line defDodgeMidFails[] = {
    {L, "'s body takes a pounding! "},
    {L, " takes the full force of that shot to the body. "},
    {L, "'s defense isn't good enough, and he takes the full brunt of the attack. "},
    {L, "'s ribs will be feeling that in the morning! "},
    {L, " isn't able to defend himself well enough, allowing his body to take a pounding. "},
};

// State_Def_DodgeMid, defence works
constexpr Line defDodgeMidWorks[] = {
    {L, " moves out of the way! "},
    {L, " manages to avoid the attack! "},
    {L, "'s body movement is superb, as he successfully dodges the attack. "},
    {L, " manages to avoid it! "},
    {L, " dodges the attack with ease. "},
};

// State_Def_DodgeLow, defence fails
constexpr Line defDodgeLowFails[] = {
    {L, "'s lead leg gets hammered! "},
    {L, " isn't able to check the attack in time. "},
    {L, " isn't quick enough, and his leg gets pounded. "},
    {L, " is going to be in trouble if he keeps letting his legs take that kind of beating! "},
    {L, " isn't able to defend himself well enough, and takes the full force of the attack. "},
};

// State_Def_DodgeLow, defence works
constexpr Line defDodgeLowWorks[] = {
    {L, " swings his leg out of the way! "},
    {L, " manages to avoid the attack! "},
    {L, "'s footwork is superb, as he successfully dodges the attack. "},
    {L, " manages to avoid it! "},
    {L, " dodges the attack with ease. "},
};

// State_Def_DodgeClinch, defence fails
constexpr Line defDodgeClinchFails[] = {
    {L, " can't handle himself in the clinch, and gets hit hard! "},
    {L, " didn't manage to get his defense up in time! "},
    {L, "'s defense isn't good enough, and he takes the full brunt of the attack. "},
    {L, " gets hammered! His clinch defense wasn't up to par for that one! "},
    {L, " isn't able to defend himself well enough, and takes the full force of the attack. "},
};

// State_Def_DodgeClinch, defence works
constexpr Line defDodgeClinchWorks[] = {
    {L, " ducks out of the way! "},
    {L, " manages to avoid the attack! "},
    {L, "'s reaction is superb, as he successfully dodges the attack. "},
    {L, " manages to avoid it! "},
    {L, " dodges the attack with ease. "},
};

// State_Def_CounterHigh, defence fails
constexpr Line defCounterHighFails[] = {
    {L, "'s timing is off, and he gets clocked hard! "},
    {L, " wasn't quite fast enough, and ends up getting hit! "},
    {L, "'s defense isn't good enough, and he takes the full brunt of the attack. "},
    {L, " gets hammered! His counter attempt wasn't good enough! "},
    {L, " isn't able to counter quickly enough, and takes the full force of the attack. "},
};

// State_Def_CounterHigh, defence works
constexpr Line defCounterHighWorks[] = {
    {L, " manages to counter the attack! "},
    {L, " counters it! "},
    {L, " slips the attack, and throws a counter attack before his opponent can react. "},
    {L, " manages to land his counter attack first! "},
    {L, " throws a counter attack. "},
};

// State_Def_CounterMid, defence fails
constexpr Line defCounterMidFails[] = {
    {L, "'s timing is off, and he gets pounded hard! "},
    {L, " wasn't quite fast enough, and his body ends up taking a beating! "},
    {L, "'s defense isn't good enough, and he takes the full brunt of the attack. "},
    {L, " gets hammered! His counter attempt wasn't good enough! "},
    {L, " isn't able to counter quickly enough, and takes the full force of the attack. "},
};

// State_Def_CounterMid, defence works
constexpr Line defCounterMidWorks[] = {
    {L, " manages to counter the attack! "},
    {L, " counters it! "},
    {L, " slips the attack, and throws a counter attack before his opponent can react. "},
    {L, " manages to land his counter attack first! "},
    {L, " throws a counter attack. "},
};

// State_Gen_CounterAtk, Front Kick
constexpr Line genCounterAtkFrontKick[] = {
    {L, " throws a counter front kick! "},
    {L, " counters using a front kick. "},
    {L, " takes advantage of his timing and throws a front kick. "},
    {L, " counters with a front kick. "},
    {L, " uses a hard front kick to counter his opponent's attack. "},
};

// State_Gen_CounterAtk, Jab
constexpr Line genCounterAtkJab[] = {
    {L, " throws a counter jab! "},
    {L, " counters using a stiff jab that snaps his opponent's head back. "},
    {L, " takes advantage of his timing and catches his opponent right on the chin with a jab. "},
    {L, " peppers him with a strong jab. "},
    {L, " uses a hard jab to counter his opponent's attack. "},
};

// State_Gen_CounterAtk, Knee
constexpr Line genCounterAtkKnee[] = {
    {L, " throws a counter knee! "},
    {L, " counters using a vicious knee. "},
    {L, " takes advantage of his timing and throws a knee. "},
    {L, " counters with a knee to the head. "},
    {L, " uses a hard knee to counter his opponent's attack. "},
};

// State_Gen_CounterAtk, Uppercut
constexpr Line genCounterAtkUppercut[] = {
    {L, " throws a hard uppercut! "},
    {L, " dips his shoulder and throws a wicked counter uppercut! "},
    {L, " takes advantage of his opponent's opening and throws a ferocious uppercut. "},
    {L, " catches his opponent completely off-guard with an uppercut out of nowhere! "},
    {L, " uses a well-timed uppercut to counter his opponent's attack. "},
};

// State_Gen_DodgeDmg, the dodger takes over
constexpr Line genDodgeDmgDodgerTakesOver[] = {
    {L, " presses his advantage! "},
    {L, " avoids the attack and tries to capitalize. "},
    {L, " slips the attack and moves forward himself! "},
    {L, " managed to throw his opponent off balance by dodging. Now he's looking to take advantage... "},
    {L, " moves forward, having avoided his opponent's assault. "},
};

// State_Gen_ReturnDmg, the hit he lets through
constexpr Line genReturnDmgHitLetThrough[] = {
    {L, " takes the attack head on! "},
    {L, " doesn't even seem to be trying to defend against the attack. "},
    {L, " leaves himself wide open, almost inviting the attack! "},
    {L, " drops his guard! He seems to be lining up his own attack. "},
    {L, " stands right in front of his opponent... "},
};

// State_Gen_ReturnDmg, Knee
constexpr Line genReturnDmgKnee[] = {
    {L, " fires back with a hard knee! "},
    {L, " responds by throwing a knee to his opponent's head. "},
    {L, " decides to fight fire with fire, pulling his opponent's head down into his knee. "},
    {L, " retaliates with a powerful knee! "},
    {L, " eats the attack in order to throw one of his own. "},
};

// State_Gen_ReturnDmg, Cross
constexpr Line genReturnDmgCross[] = {
    {L, " fires back with a hard cross! "},
    {L, " responds with a right cross. "},
    {L, " decides to fight fire with fire, throwing a hard cross. "},
    {L, " returns the favour with a vicious cross! "},
    {L, " eats the attack in order to throw one of his own. "},
};

// State_Gen_ReturnDmg, Uppercut
constexpr Line genReturnDmgUppercut[] = {
    {L, " fires back with a hard uppercut! "},
    {L, " doesn't let his attacker get away, throwing an uppercut in retaliation. "},
    {L, " decides to fight fire with fire, throwing a hard uppercut. "},
    {L, " responds by throwing everything he has into a vicious uppercut! "},
    {L, " eats the attack in order to throw one of his own. "},
};

// State_Gen_ReturnDmg, Hook
constexpr Line genReturnDmgHook[] = {
    {L, " fires back with a crushing hook! "},
    {L, " responds with a ferocious overhand right! "},
    {L, " decides to fight fire with fire, throwing a hook in response. "},
    {L, " returns the favour with a vicious hook! "},
    {L, " eats the attack in order to throw one of his own. "},
};

// State_Gen_ReturnDmg, Jab
constexpr Line genReturnDmgJab[] = {
    {L, " fires back with a well-timed jab. "},
    {L, " responds by throwing a stiff jab. "},
    {L, " decides to fight fire with fire, whipping out a quick retaliatory jab. "},
    {L, " returns the favour with a hard jab! "},
    {L, " eats the attack in order to throw one of his own. "},
};

// State_Gen_ReturnDmg, High Kick
constexpr Line genReturnDmgHighKick[] = {
    {L, " fires back with a high kick! "},
    {L, " responds with a high left kick. "},
    {L, " decides to fight fire with fire, throwing a kick at his opponent's head. "},
    {L, "'s kicking skills are on full display here, as he throws a high kick in response! "},
    {L, " eats the attack in order to throw one of his own. "},
};

// State_Gen_ReturnReceive
constexpr Line genReturnReceive[] = {
    {L, " gets nailed by his opponent's retaliation! "},
    {L, " isn't able to get away unscathed, as he gets clocked by his opponent's response. "},
    {L, " gets pounded right on the chin! It's a back and forth exchange! "},
    {L, " is hammered by his opponent's return fire! "},
    {L, " gets hit back just as hard! They're just trading shots now! "},
};

// State_Gen_KD, counted out
constexpr Line genKDCountedOut[] = {
    {L, " stays down, and it is over! "},
    {F, " isn't able to beat the count. "},
    {L, " can't get up, and this match is over. "},
    {L, " is done, and the referee waves the match off. "},
    {F, " won't be getting up any time soon, and the bell rings to end the match. "},
};

// State_Gen_KD, up again
constexpr Line genKDUpAgain[] = {
    {L, " gets up! "},
    {L, " musters up the courage to pick himself up off the mat! "},
    {L, " is up and ready to keep fighting! "},
    {L, " gets up, and looks like he's ready to fire back! "},
    {L, " rises up, and continues the match. "},
};

// State_Gen_KO
constexpr Line genKO[] = {
    {F, " is out cold! It's over! "},
    {"Oh! ", L, " crumples to the mat! He's out! "},
    {L, " collapses to the mat, knocked out before he even hits the ground! "},
    {"Oh! ", L, " falls to the ground! It's a knockout! "},
    {L, " gets knocked out cold, falling to the mat in a heap! "},
};

// clang-format on

struct Catalogue {
    template <int N>
    constexpr Catalogue(CommentaryList l, const Line (&rows)[N])
        : list(l)
        , lines(rows)
        , count(N)
    {
    }

    CommentaryList list;
    const Line *lines;
    int count;
};

constexpr Catalogue catalogue[] = {
    {CommentaryList::AtkOut_ToIn, atkOutToIn},
    {CommentaryList::AtkOut_ToOutAttack, atkOutToOutAttack},
    {CommentaryList::AtkIn_ToOut, atkInToOut},
    {CommentaryList::AtkIn_ToClinch, atkInToClinch},
    {CommentaryList::AtkIn_ToInAttack, atkInToInAttack},
    {CommentaryList::AtkClinch_ToIn, atkClinchToIn},
    {CommentaryList::AtkClinch_ToClinchAttack, atkClinchToClinchAttack},
    {CommentaryList::AtkIn_OnEvOut, atkInOnEvOut},
    {CommentaryList::AtkIn_OnEvClinch, atkInOnEvClinch},
    {CommentaryList::AtkClinch_OnEvIn, atkClinchOnEvIn},
    {CommentaryList::AtkOut_OnEvIn, atkOutOnEvIn},
    {CommentaryList::AtkOutAttack_Jab, atkOutAttackJab},
    {CommentaryList::AtkOutAttack_Cross, atkOutAttackCross},
    {CommentaryList::AtkOutAttack_LowKick, atkOutAttackLowKick},
    {CommentaryList::AtkOutAttack_MidKick, atkOutAttackMidKick},
    {CommentaryList::AtkOutAttack_HighKick, atkOutAttackHighKick},
    {CommentaryList::AtkOutAttack_FrontKick, atkOutAttackFrontKick},
    {CommentaryList::AtkInAttack_Hook, atkInAttackHook},
    {CommentaryList::AtkInAttack_Cross, atkInAttackCross},
    {CommentaryList::AtkInAttack_Uppercut, atkInAttackUppercut},
    {CommentaryList::AtkInAttack_LowKick, atkInAttackLowKick},
    {CommentaryList::AtkInAttack_Knee, atkInAttackKnee},
    {CommentaryList::AtkInAttack_BodyPunch, atkInAttackBodyPunch},
    {CommentaryList::AtkClinchAttack_Hook, atkClinchAttackHook},
    {CommentaryList::AtkClinchAttack_Uppercut, atkClinchAttackUppercut},
    {CommentaryList::AtkClinchAttack_Knee, atkClinchAttackKnee},
    {CommentaryList::AtkClinchAttack_Elbow, atkClinchAttackElbow},
    {CommentaryList::AtkClinchAttack_DirtyBoxing, atkClinchAttackDirtyBoxing},
    {CommentaryList::AtkClinchAttack_BodyPunch, atkClinchAttackBodyPunch},
    {CommentaryList::DefIn, defIn},
    {CommentaryList::DefOut, defOut},
    {CommentaryList::DefClinch, defClinch},
    {CommentaryList::DefDefMoveIn_FrontKick, defDefMoveInFrontKick},
    {CommentaryList::DefDefMoveIn_Jab, defDefMoveInJab},
    {CommentaryList::DefDefMoveOut_FrontKick, defDefMoveOutFrontKick},
    {CommentaryList::DefDefMoveOut_Jab, defDefMoveOutJab},
    {CommentaryList::DefDefMoveClinch_Knee, defDefMoveClinchKnee},
    {CommentaryList::DefDefMoveClinch_Cross, defDefMoveClinchCross},
    {CommentaryList::DefBlockHighPunch_Fails, defBlockHighPunchFails},
    {CommentaryList::DefBlockHighPunch_Works, defBlockHighPunchWorks},
    {CommentaryList::DefBlockHighKick_Fails, defBlockHighKickFails},
    {CommentaryList::DefBlockHighKick_Works, defBlockHighKickWorks},
    {CommentaryList::DefBlockMid_Fails, defBlockMidFails},
    {CommentaryList::DefBlockMid_Works, defBlockMidWorks},
    {CommentaryList::DefBlockLow_Fails, defBlockLowFails},
    {CommentaryList::DefBlockLow_Works, defBlockLowWorks},
    {CommentaryList::DefBlockClinch_Fails, defBlockClinchFails},
    {CommentaryList::DefBlockClinch_Works, defBlockClinchWorks},
    {CommentaryList::DefDodgeHigh_Fails, defDodgeHighFails},
    {CommentaryList::DefDodgeHigh_Works, defDodgeHighWorks},
    {CommentaryList::DefDodgeMid_Fails, defDodgeMidFails},
    {CommentaryList::DefDodgeMid_Works, defDodgeMidWorks},
    {CommentaryList::DefDodgeLow_Fails, defDodgeLowFails},
    {CommentaryList::DefDodgeLow_Works, defDodgeLowWorks},
    {CommentaryList::DefDodgeClinch_Fails, defDodgeClinchFails},
    {CommentaryList::DefDodgeClinch_Works, defDodgeClinchWorks},
    {CommentaryList::DefCounterHigh_Fails, defCounterHighFails},
    {CommentaryList::DefCounterHigh_Works, defCounterHighWorks},
    {CommentaryList::DefCounterMid_Fails, defCounterMidFails},
    {CommentaryList::DefCounterMid_Works, defCounterMidWorks},
    {CommentaryList::GenCounterAtk_FrontKick, genCounterAtkFrontKick},
    {CommentaryList::GenCounterAtk_Jab, genCounterAtkJab},
    {CommentaryList::GenCounterAtk_Knee, genCounterAtkKnee},
    {CommentaryList::GenCounterAtk_Uppercut, genCounterAtkUppercut},
    {CommentaryList::GenDodgeDmg_DodgerTakesOver, genDodgeDmgDodgerTakesOver},
    {CommentaryList::GenReturnDmg_HitLetThrough, genReturnDmgHitLetThrough},
    {CommentaryList::GenReturnDmg_Knee, genReturnDmgKnee},
    {CommentaryList::GenReturnDmg_Cross, genReturnDmgCross},
    {CommentaryList::GenReturnDmg_Uppercut, genReturnDmgUppercut},
    {CommentaryList::GenReturnDmg_Hook, genReturnDmgHook},
    {CommentaryList::GenReturnDmg_Jab, genReturnDmgJab},
    {CommentaryList::GenReturnDmg_HighKick, genReturnDmgHighKick},
    {CommentaryList::GenReturnReceive, genReturnReceive},
    {CommentaryList::GenKD_CountedOut, genKDCountedOut},
    {CommentaryList::GenKD_UpAgain, genKDUpAgain},
    {CommentaryList::GenKO, genKO},
};

// the catalogue is indexed by the list, so its rows must stand in the order of the enumeration
constexpr bool inEnumOrder()
{
    for (int i = 0; i < int(std::size(catalogue)); ++i)
        if (catalogue[i].list != CommentaryList(i))
            return false;
    return true;
}
static_assert(std::size(catalogue) == std::size_t(CommentaryList::Count), "one row per list");
static_assert(inEnumOrder(), "rows in the order of CommentaryList");

const Catalogue *find(CommentaryList list)
{
    const int i = int(list);
    return i >= 0 && i < int(std::size(catalogue)) ? &catalogue[i] : nullptr;
}

} // namespace

int Commentary::size(CommentaryList list)
{
    const Catalogue *entry = find(list);
    return entry ? entry->count : 0;
}

QString Commentary::line(CommentaryList list, int pick, const QString &lastName, const QString &fullName)
{
    const Catalogue *entry = find(list);
    if (!entry)
        return QString();
    const int index = ((pick % entry->count) + entry->count) % entry->count;
    QString text;
    for (const Piece &piece : entry->lines[index].pieces) {
        switch (piece.name) {
        case Name::Last:
            text += lastName;
            break;
        case Name::Full:
            text += fullName;
            break;
        case Name::Literal:
            if (piece.text)
                text += QLatin1String(piece.text);
            break;
        }
    }
    return text;
}

QString Commentary::pickLine(CommentaryList list, int roll, const QString &lastName, const QString &fullName)
{
    return line(list, roll, lastName, fullName);
}

QString Commentary::countStep(int number)
{
    return QString::number(number) + QStringLiteral("..... ");
}
