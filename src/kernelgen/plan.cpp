#include "kernelgen/plan.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>

namespace kfm::kernelgen {
namespace {

[[noreturn]] void refuse(int n, const std::string& why) {
    throw std::invalid_argument("factor tree of length " + std::to_string(n) + ": " + why);
}

bool isPrime(int n) {
    for (int d = 2; d * d <= n; ++d)
        if (n % d == 0) return false;
    return n > 1;
}

bool isPowerOfTwo(int n) { return n > 0 && (n & (n - 1)) == 0; }

int smallestPrimitiveRoot(int prime) {
    int g = 2;
    while (!isPrimitiveRoot(g, prime)) ++g;
    return g;
}

Plan::Kind moduleKind(int n) {
    if (n < 1) refuse(n, "no such module");
    return n > 4 && isPowerOfTwo(n) ? Plan::Kind::powerOfTwo : Plan::Kind::direct;
}

}   // namespace

Plan::Plan(int length) : n(length), kind(moduleKind(length)) {
    if (kind == Kind::direct && n > 4 && !isPrime(n)) refuse(n, "a composite length has no module");
}

Plan::Plan(int length, Kind planKind, std::vector<Plan> planParts)
    : n(length), kind(planKind), parts(std::move(planParts)) {}

Plan factored5() { return Plan(5, Plan::Kind::factored5, {}); }

Plan paired(int n) {
    Plan plan(n);
    if (plan.kind != Plan::Kind::direct || n < 5) refuse(n, "no sums to pair");
    plan.paired = true;
    return plan;
}

Plan evenOdd(int n) {
    if (n < 8 || !isPowerOfTwo(n)) refuse(n, "even and odd samples need a power of two");
    return Plan(n, Plan::Kind::evenOdd, {});
}

Plan pfa(const Plan& first, const Plan& second) {
    const int n = first.n * second.n;
    if (std::gcd(first.n, second.n) != 1) refuse(n, "prime factors must be coprime");
    return Plan(n, Plan::Kind::pfa, {first, second});
}

Plan ct(const Plan& first, const Plan& second) {
    const int n = first.n * second.n;
    if (first.n < 2 || second.n < 2) refuse(n, "a twiddled step needs two factors");
    return Plan(n, Plan::Kind::ct, {first, second});
}

Plan rader(const Plan& convolution, int root, int shift) {
    const int prime = convolution.n + 1;
    if (!isPrime(prime)) refuse(prime, "Rader's step needs a prime");
    if (root == 0) root = smallestPrimitiveRoot(prime);
    if (!isPrimitiveRoot(root, prime))
        refuse(prime, std::to_string(root) + " is no primitive root");
    Plan plan(prime, Plan::Kind::rader, {convolution});
    plan.root = root;
    plan.shift = shift;
    return plan;
}

Plan paddedRader(int prime, const Plan& quarter) {
    if (!isPrime(prime)) refuse(prime, "Rader's step needs a prime");
    if (4 * quarter.n < 2 * prime - 3) refuse(prime, "the padded convolution wraps around");
    Plan plan(prime, Plan::Kind::paddedRader, {quarter});
    plan.root = smallestPrimitiveRoot(prime);
    return plan;
}

std::string Plan::text() const {
    const std::string length = std::to_string(n);
    switch (kind) {
    case Kind::direct: return paired ? length + " in pairs" : length;
    case Kind::powerOfTwo: return length + " by split radix";
    case Kind::evenOdd: return length + " by even and odd samples";
    case Kind::factored5: return "factored 5";
    case Kind::pfa: return length + " = PFA(" + first().text() + ", " + second().text() + ")";
    case Kind::ct: return length + " = CT(" + first().text() + ", " + second().text() + ")";
    case Kind::rader:
        return length + " = Rader(" + first().text() + "; root " + std::to_string(root) +
               (shift == 0 ? "" : ", shift " + std::to_string(shift)) + ")";
    case Kind::paddedRader:
        return length + " = Rader padded to " + std::to_string(4 * first().n) + " = 4 x (" +
               first().text() + ")";
    }
    refuse(n, "unknown kind");
}

Plan roundedOtherwise(const Plan& plan, std::minstd_rand& random) {
    Plan result = plan;
    for (Plan& part : result.parts) part = roundedOtherwise(part, random);
    if (plan.kind == Plan::Kind::direct && plan.n > 4) result.paired = random() % 2;
    if (plan.kind == Plan::Kind::pfa && random() % 2) std::swap(result.parts[0], result.parts[1]);
    if (plan.kind == Plan::Kind::rader) {
        do result.root = 2 + static_cast<int>(random() % (plan.n - 2));
        while (!isPrimitiveRoot(result.root, plan.n));
        result.shift = static_cast<int>(random() % ((plan.n - 1) / 2));
    }
    return result;
}

bool sameSteps(const Plan& a, const Plan& b) {
    return a.n == b.n && a.kind == b.kind && std::ranges::equal(a.parts, b.parts, sameSteps);
}

int powerModulo(int base, int exponent, int modulus) {
    int result = 1;
    for (int i = 0; i < exponent; ++i) result = result * base % modulus;
    return result;
}

bool isPrimitiveRoot(int g, int prime) {
    int order = 1;
    for (int power = g % prime; power > 1; power = power * g % prime) ++order;
    return g % prime != 0 && order == prime - 1;
}

int chineseRemainder(int k1, int n1, int k2, int n2) {
    for (int k = k1 % n1; k < n1 * n2; k += n1)
        if (k % n2 == k2 % n2) return k;
    refuse(n1 * n2, "prime factors must be coprime");
}

}   // namespace kfm::kernelgen
