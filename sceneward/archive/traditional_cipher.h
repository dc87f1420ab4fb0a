#pragma once
// The traditional zip cipher: three 32-bit keys stepped by CRC-32, that
// encrypts an entry's bytes behind a 12-byte header. It is weak, and kept
// because every zip tool reads it. The zip library in use here is built
// without it, so the archive carries its own.
#include <array>
#include <cstddef>
#include <cstdint>

class TraditionalCipher {
 public:
  static constexpr size_t kHeaderSize = 12;
  using Header = std::array<uint8_t, kHeaderSize>;

  // Keys set up from the 0-terminated `password`.
  explicit TraditionalCipher(const char* password);

  // In place, `size` bytes at a time; the keys move on with the plain text,
  // so the bytes of one entry go through one object in order.
  void Encrypt(uint8_t* data, size_t size);
  void Decrypt(uint8_t* data, size_t size);

  // An encrypted header for a new entry: eleven random bytes and then
  // `checkByte`, which a reader compares to tell a wrong password.
  Header EncryptedHeader(uint8_t checkByte);

 private:
  uint8_t KeyStreamByte() const;
  void UpdateKeys(uint8_t plain);

  uint32_t key0_;
  uint32_t key1_;
  uint32_t key2_;
};
