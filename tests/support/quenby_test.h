#pragma once

#include <gtest/gtest.h>

#include <string>

#include "scoring/player/player_class.h"
#include "scoring/team/team_class.h"
#include "scoring/tournament_class.h"
#include "stores/quenby/program_class.h"
#include "support/bytes.h"
#include "support/error_of.h"
#include "support/test_host.h"

namespace golf {

// An empty Quenby data folder on the afternoon of 13 May 2024.
class QuenbyTest : public testing::Test {
 protected:
  QuenbyTest() {
    state.StoreDataPath = state.QBDataPath;
    state.Now = [] { return DateFromCivil({2024, 5, 13, 14, 30, 15}); };
  }

  void Write(const std::string& name, const std::string& bytes) {
    install.folder.Write("qbdata/" + name, bytes);
    state.files.Synchronize();
  }
  std::string Read(const std::string& name) { return install.folder.Read("qbdata/" + name); }

  TestInstall install;
  SharedState& state = install.state();
  ProgramClass& program = state.Program();
  TournamentControl& tournament = state.Tournament();
  TournamentPlayers& player = state.Player();
  TeamRecords& team = state.Team1();
};

}  // namespace golf
