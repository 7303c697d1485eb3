#include "outlets/export/views.h"

namespace golf {
namespace {

constexpr ExportView kViews[] = {
    // The scores of Kelvane's golfers with their courses, newest first for each golfer.
    {"golfer_scores", R"(
select g.id as golfer_id, r.name as roster, g."IDNum", g."NameLast", g."NameFirst",
       s.number, s."Date", s."CourseNumber", s.course_id, c."Name" as course,
       t."TeeName" as tee, s."Rating", s."Slope", s."Gross", s."Adjusted", s."ScoreType",
       s."HandicapPlayed"
from kelvane_scores s
join kelvane_golfers g on g.id = s.golfer_id
join kelvane_rosters r on r.id = g.roster_id
left join courses c on c.id = s.course_id
left join tees t on t.id = s.tee_id
where not g.deleted and not s.deleted)"},

    // Each golfer of Kelvane with his last score. Null: he has never played.
    {"golfers_last_played", R"(
select g.id as golfer_id, r.name as roster, g."IDNum", g."NameLast", g."NameFirst",
       max(s."Date") as last_played, count(s.number) as scores
from kelvane_golfers g
join kelvane_rosters r on r.id = g.roster_id
left join kelvane_scores s on s.golfer_id = g.id and not s.deleted
where not g.deleted
group by g.id)"},

    // The strokes of Kelvane's scores by hole. A hole that was not entered is left out.
    {"hole_scores", R"(
with holes_of_round(hole) as (
  values (1), (2), (3), (4), (5), (6), (7), (8), (9),
         (10), (11), (12), (13), (14), (15), (16), (17), (18))
select * from (
  select s.golfer_id, g."IDNum", g."NameLast", g."NameFirst", s.number, s."Date", s.course_id,
         s.tee_id, n.hole,
         case n.hole
           when 1 then s."HoleScore_1" when 2 then s."HoleScore_2" when 3 then s."HoleScore_3"
           when 4 then s."HoleScore_4" when 5 then s."HoleScore_5" when 6 then s."HoleScore_6"
           when 7 then s."HoleScore_7" when 8 then s."HoleScore_8" when 9 then s."HoleScore_9"
           when 10 then s."HoleScore_10" when 11 then s."HoleScore_11"
           when 12 then s."HoleScore_12" when 13 then s."HoleScore_13"
           when 14 then s."HoleScore_14" when 15 then s."HoleScore_15"
           when 16 then s."HoleScore_16" when 17 then s."HoleScore_17"
           else s."HoleScore_18" end as strokes,
         h."HolePar" as par
  from kelvane_scores s
  join kelvane_golfers g on g.id = s.golfer_id and not g.deleted
  join holes_of_round n
  left join holes h on h.course_id = s.course_id and h.tee = s."TeeNumber" and h.hole = n.hole
  where not s.deleted)
where strokes > 0)"},

    // The golfers of each round of each tournament, ranked by net as `results players` does. The
    // results are texts. A net with a plus sign is below 0. A golfer without a score has no place.
    {"tournament_standings", R"(
with played as (
  select *, "TourTotalGross" + 0 > 0 as has_total from results_players where error is null),
players as (
  select *, "TourScoreGross_total" + 0 as gross,
         ltrim("TourScoreNet_total", '+') *
           case when "TourScoreNet_total" like '+%' then -1 else 1 end as net
  from played where "TourScoreGross_total" + 0 > 0
  union all
  select *, null, null from played where not "TourScoreGross_total" + 0 > 0)
select t.id as tournament_id, t.number as tournament, t."Name" as tournament_name,
       p.round, p.entry_id, p."IDNum", p."NameLF", p."TourHandicap", p.gross, p.net,
       case when p.gross > 0 then p."TourPointsNet_total" + 0 end as points,
       case when p.has_total then p."TourTotalGross" + 0 end as total_gross,
       case when p.has_total then p."TourTotalNet" + 0 end as total_net,
       case when p.gross > 0 then
         rank() over (partition by p.tournament_id, p.round
                      order by p.gross is null, p.net) end as place
from players p
join tournaments t on t.id = p.tournament_id)"},

    // Each team of each round of each tournament with its totals, as `results teams` shows them. A
    // team without a score has no totals.
    {"team_standings", R"(
select t.id as tournament_id, t.number as tournament, t."Name" as tournament_name,
       r.round, r.team_id, r."TeamNumber", r."TeamName", r."NameofPlayersOnTeam_0" as golfers,
       case when r."ScoreGross_total" + 0 > 0 then r."ScoreGross_total" + 0 end as gross,
       case when r."ScoreGross_total" + 0 > 0 then round(r."ScoreNet_total", 2) end as net,
       case when r."ScoreGross_total" + 0 > 0 then r."PointsNet_total" + 0 end as points
from results_teams r
join tournaments t on t.id = r.tournament_id
where r.error is null)"},

    // The rosters of each golfer of Quenby, a row for each. Quenby does not use the fourth slot.
    {"quenby_roster_golfers", R"(
select r.number as roster, r."ClubName", g.id as golfer_id, g."IDNum", g."NameLast",
       g."NameFirst", g."Index", g."Handicap"
from quenby_golfer_rosters m
join quenby_rosters r on r.id = m.roster_id
join quenby_golfers g on g.id = m.golfer_id
where not g.deleted and m.slot <= 3)"},

    // The scores of the events of leagues with their dates.
    {"league_scores", R"(
select l.base as league, l."LeagueName", p.id as player_id, p."GolferID", p."LastName",
       p."FirstName", p.substitute, e.event, v."EventDate", m.number as team, e."EventScore",
       e."EventPostScore", e."EventHandicap"
from league_player_events e
join league_players p on p.id = e.player_id
join leagues l on l.id = p.league_id
left join league_events v on v.id = e.event_id
left join league_teams m on m.id = e.team_id
where e."EventScore" > 0 and not p.deleted)"},
};

}  // namespace

std::span<const ExportView> ExportViews() { return kViews; }

}  // namespace golf
