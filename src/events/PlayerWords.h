// A player of the live game in words, for whoever points at his button or has it read aloud.
#pragma once

#include "game/Side.h"

class QWidget;

namespace hooptab {

class LiveGame;
class Texts;

// Tool tip and accessible name: number, name, position, fouls, time on court, on court or not, fouled out.
void showPlayerWords(QWidget& widget, const LiveGame& game, Side team, int player, const Texts& texts);

} // namespace hooptab
