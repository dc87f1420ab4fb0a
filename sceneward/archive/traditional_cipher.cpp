#include "sceneward/archive/traditional_cipher.h"

#include <zlib.h>

#include <random>

namespace {

uint32_t Crc32Step(uint32_t crc, uint8_t byte) {
  static const z_crc_t* const table = get_crc_table();
  return table[(crc ^ byte) & 0xFF] ^ (crc >> 8);
}

}  // namespace

TraditionalCipher::TraditionalCipher(const char* password)
    : key0_(0x12345678), key1_(0x23456789), key2_(0x34567890) {
  for (const char* p = password; *p != '\0'; ++p) UpdateKeys(static_cast<uint8_t>(*p));
}

uint8_t TraditionalCipher::KeyStreamByte() const {
  const uint32_t temp = (key2_ & 0xFFFF) | 2;
  return static_cast<uint8_t>((temp * (temp ^ 1)) >> 8);
}

void TraditionalCipher::UpdateKeys(uint8_t plain) {
  key0_ = Crc32Step(key0_, plain);
  key1_ = (key1_ + (key0_ & 0xFF)) * 134775813u + 1;
  key2_ = Crc32Step(key2_, static_cast<uint8_t>(key1_ >> 24));
}

void TraditionalCipher::Encrypt(uint8_t* data, size_t size) {
  for (size_t i = 0; i < size; ++i) {
    const uint8_t plain = data[i];
    data[i] = plain ^ KeyStreamByte();
    UpdateKeys(plain);
  }
}

void TraditionalCipher::Decrypt(uint8_t* data, size_t size) {
  for (size_t i = 0; i < size; ++i) {
    data[i] ^= KeyStreamByte();
    UpdateKeys(data[i]);
  }
}

TraditionalCipher::Header TraditionalCipher::EncryptedHeader(uint8_t checkByte) {
  std::random_device random;
  std::uniform_int_distribution<int> byte(0, 255);
  Header header;
  for (size_t i = 0; i + 1 < kHeaderSize; ++i) header[i] = static_cast<uint8_t>(byte(random));
  header[kHeaderSize - 1] = checkByte;
  Encrypt(header.data(), header.size());
  return header;
}
