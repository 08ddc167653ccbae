#include "read.h"

Model readXyz(const File& file, Progress& progress) {
  Model model;
  Words words(file, {true, false});
  std::size_t columns = 0;
  while (words.next()) {
    if (words.count() < 3)
      words.refuse("a point has 3 coordinates, here are " + std::to_string(words.count()) + " numbers");
    if (columns == 0)
      columns = words.count();
    if (words.count() != columns)
      words.refuse("here are " + std::to_string(words.count()) + " numbers, on the lines before " +
                   std::to_string(columns));
    if (model.scan.points.size() == mostPoints)
      words.refuse("more than " + std::to_string(mostPoints) + " points");
    for (std::size_t i = 3; i < columns; ++i)
      words.number(i);
    model.scan.points.push_back({words.number(0), words.number(1), words.number(2)});
    if (model.scan.points.size() % 4096 == 0)
      progress.at(words.position(), file.bytes.size());
  }
  return model;
}
