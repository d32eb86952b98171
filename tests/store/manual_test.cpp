// The manual page of the configuration file has a row for every key, in its section's table.
#include "store/schema.h"
#include "store_fixture.h"

namespace {

using Manual = StoreTest;

TEST_F(Manual, HasARowForEveryKey) {
  const std::string page = read(ONDRELLE_SOURCE_DIR "/docs/man/odconf.5");
  const struct {
    std::string head;
    std::span<const SchemaKey> keys;
  } sections[] = {
      {".SS /GlobalSigParams0\n", globalSigKeys},
      {".SS /Adapter\\fIA\\fP\n", physicalKeys},
      {"/RedundantLink0\n", redundantLinkKeys},
      {"/Signalling0\n", signallingWritten},
      {"/Q2931Section0\n", q2931Keys},
      {"/Q2931Section0\n", q2931Written},
      {"/QSaalSection0\n", qSaalKeys},
      {"/IlmiSection0\n", ilmiKeys},
      {"/IlmiSection0\n", ilmiWritten},
      {"/LEC\\fII\\fP\n", lecKeys},
      {"/LES\\fII\\fP\n", lesKeys},
      {"/LECS0\n", lecsKeys},
      {"/IP15770\n", ip1577Keys},
  };
  for (const auto& section : sections) {
    const std::size_t from = page.find(section.head);
    ASSERT_NE(from, page.npos) << section.head;
    const std::string table = page.substr(from, page.find("\n.TE", from) - from);
    for (const SchemaKey& key : section.keys) {
      EXPECT_NE(table.find('\n' + std::string(key.name) + '\t'), table.npos) << key.name;
    }
  }
}

}  // namespace
