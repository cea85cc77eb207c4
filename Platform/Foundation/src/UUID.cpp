#include <Foundation/UUID.h>

#include <boost/uuid/random_generator.hpp>

namespace velmar {

UUID::UUID() : uuid(boost::uuids::random_generator()()) {}

} // namespace velmar
